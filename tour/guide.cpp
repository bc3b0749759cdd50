#include "tour/guide.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QImage>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPixmap>
#include <QProgressDialog>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace ng {
namespace {

constexpr std::chrono::seconds kPatience(60);
constexpr std::chrono::seconds kWait(10);
constexpr std::chrono::milliseconds kTick(20);
/// Directories are read in the background, so a window must have looked the same for some ticks.
constexpr int kQuietTicks = 6;

/// Runs the events until the condition holds. Returns whether it came to that.
bool WaitUntil(const std::function<bool()>& condition) {
  QTimer tick;
  tick.start(kTick);
  const QDeadlineTimer deadline(kWait);
  while (!condition()) {
    if (deadline.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  return true;
}

QWidgetList OpenWindows() {
  QWidgetList open;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) open += window;
  }
  return open;
}

}  // namespace

Guide::Guide(const QString& folder) : watchdog_(kPatience), folder_(folder) {
  QObject::connect(&watch_, &QTimer::timeout, [this] { AnswerModalWindow(); });
  watch_.start(kTick);
}

void Guide::Say(const QString& line) {
  watchdog_.Report(line.trimmed().toStdString());
  std::printf("%s\n", qPrintable(line));
  std::fflush(stdout);
}

// Neither an exception nor a return gets out of the event loops of the windows that are open.
void Guide::BreakOff(const QString& why) {
  std::fprintf(stderr, "The tour breaks off after: %s\n%s\n", watchdog_.Place().c_str(),
               qPrintable(why));
  std::fflush(nullptr);
  std::_Exit(1);
}

void Guide::Take(QWidget& window, const char* name) {
  if (!window.isVisible()) BreakOff(QStringLiteral("not open: ") + window.objectName());
  window.activateWindow();
  QImage picture;
  int quiet = 0;
  const bool settled = WaitUntil([&] {
    const QImage now = window.grab().toImage();
    quiet = window.isActiveWindow() && now == picture ? quiet + 1 : 0;
    picture = now;
    return quiet == kQuietTicks;
  });
  if (!settled) BreakOff(QString::fromLatin1(name) + QLatin1String(": the window does not settle"));
  const QString file = folder_.filePath(QString::fromLatin1(name) + QLatin1String(".png"));
  const bool written = picture.save(file);
  ++(written ? written_ : missing_);
  Say((written ? QStringLiteral("  ") : QStringLiteral("  could not write ")) + file);
}

bool Guide::Finish() {
  Say(QStringLiteral("%1 pictures written, %2 missing").arg(written_).arg(missing_));
  return missing_ == 0;
}

void Guide::Press(QWidget& window, const char* name) {
  Trigger(window, name);
  if (next_ != nullptr) {
    BreakOff(QString::fromLatin1(name) + QLatin1String(" did not open its window"));
  }
}

void Guide::PressAndCloseMessages(QWidget& window, const char* name) {
  hears_ = true;
  Press(window, name);
  hears_ = false;
}

void Guide::TakeWindowOf(QWidget& window, const char* name, const char* picture) {
  InNextWindow([this, picture](QDialog& dialog) {
    Take(dialog, picture);
    dialog.reject();
  });
  const QWidgetList before = OpenWindows();
  Trigger(window, name);
  if (next_ == nullptr) return;
  next_ = nullptr;
  for (QWidget* opened : OpenWindows()) {
    if (before.contains(opened)) continue;
    Take(*opened, picture);
    opened->close();
    return;
  }
  BreakOff(QString::fromLatin1(name) + QLatin1String(" did not open a window"));
}

void Guide::Trigger(QWidget& window, const char* name) {
  if (auto* action = window.findChild<QAction*>(QString::fromLatin1(name)))
    return action->trigger();
  Find<QAbstractButton>(window, name).click();
}

void Guide::AnswerModalWindow() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible() || dialog == driven_) return;
  // A progress box closes by itself.
  if (qobject_cast<QProgressDialog*>(dialog) != nullptr) return;
  auto* message = qobject_cast<QMessageBox*>(dialog);
  if (next_ == nullptr) {
    if (!hears_ || message == nullptr) {
      BreakOff(QStringLiteral("unexpected window: ") + dialog->windowTitle() + QLatin1Char(' ') +
               (message == nullptr ? QString() : message->text()));
    }
    Say(QStringLiteral("  \"%1\"").arg(message->text().simplified()));
    return message->accept();
  }
  const Drive drive = std::exchange(next_, nullptr);
  const QDialog* outer = std::exchange(driven_, dialog);
  drive(*dialog);
  if (dialog->isVisible()) BreakOff(QStringLiteral("left open: ") + dialog->windowTitle());
  driven_ = outer;
}

void ClickAt(QWidget& widget, const QPoint& place) {
  const QPointF inside(place);
  const QPointF onScreen = widget.mapToGlobal(inside);
  QMouseEvent press(QEvent::MouseButtonPress, inside, onScreen, Qt::LeftButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&widget, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, inside, onScreen, Qt::LeftButton, {}, {});
  QCoreApplication::sendEvent(&widget, &release);
}

void PressKey(QWidget& widget, Qt::Key key) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, {});
    QCoreApplication::sendEvent(&widget, &event);
  }
}

}  // namespace ng
