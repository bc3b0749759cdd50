// The real program, driven by keys and clicks at random until it is killed. Before each it prints
// "B", and afterwards "A" with a digest of all that the windows show. At the start it takes up the
// fight that was not closed and prints "U" with the digest.
//
//   ng_kill_victim SETTINGS SEED

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QCryptographicHash>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QTreeWidget>
#include <random>
#include <unistd.h>

#include "ui/program.h"

namespace {

void Print(const QByteArray& line) {
  const QByteArray whole = line + '\n';
  static_cast<void>(!::write(STDOUT_FILENO, whole.constData(), static_cast<size_t>(whole.size())));
}

/// What one widget shows.
QString Shown(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return line->text();
  if (const auto* note = qobject_cast<const QPlainTextEdit*>(&widget)) return note->toPlainText();
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return combo->currentText();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    return button->isChecked() ? QStringLiteral("checked") : QString();
  }
  QString text;
  if (const auto* table = qobject_cast<const QTableView*>(&widget)) {
    for (int row = 0; row < table->model()->rowCount(); ++row) {
      for (int column = 0; column < table->model()->columnCount(); ++column) {
        text += table->model()->index(row, column).data().toString() + QLatin1Char('\t');
      }
    }
  }
  if (const auto* tree = qobject_cast<const QTreeWidget*>(&widget)) {
    for (int row = 0; row < tree->topLevelItemCount(); ++row) {
      text += tree->topLevelItem(row)->text(0) + QLatin1Char('\t');
    }
  }
  return text;
}

/// Notices come and go with a start, and a tooltip's step is not part of the fight.
bool IsOfTheFight(const QString& name) {
  return !name.isEmpty() && name != QLatin1String("lblJournal") &&
         name != QLatin1String("lblLogFailure") && !name.startsWith(QLatin1String("qt_"));
}

QByteArray Digest(const QWidget& window) {
  QCryptographicHash hash(QCryptographicHash::Sha1);
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!IsOfTheFight(widget->objectName())) continue;
    hash.addData((widget->objectName() + QLatin1Char('=') + Shown(*widget)).toUtf8());
  }
  return hash.result().toHex();
}

/// Presses buttons of whatever asks something, so that no command waits.
void AnswerBoxes() {
  auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (box == nullptr) return;
  if (auto* message = qobject_cast<QMessageBox*>(box)) {
    message->defaultButton() != nullptr ? message->defaultButton()->click() : message->accept();
    return;
  }
  box->reject();
}

class Player : public QObject {
 public:
  Player(QWidget& window, unsigned seed) : window_(window), random_(seed) {
    connect(&boxes_, &QTimer::timeout, this, AnswerBoxes);
    boxes_.start(1);
    connect(&acts_, &QTimer::timeout, this, [this] { Act(); });
    acts_.start(0);
  }

 private:
  void Key(int key, Qt::KeyboardModifiers modifiers) {
    // As the toolkit's tests send keys: a shortcut first, then whoever has the focus.
    for (QAction* action : window_.findChildren<QAction*>()) {
      if (action->shortcut() == QKeySequence(QKeyCombination(modifiers, Qt::Key(key)))) {
        action->trigger();
        return;
      }
    }
  }
  void Click(const char* button) {
    if (auto* found = window_.findChild<QAbstractButton*>(QString::fromLatin1(button))) {
      found->click();
    }
  }
  void ClickRow() {
    auto* grid = window_.findChild<QTableView*>(QStringLiteral("GridX"));
    if (grid == nullptr || grid->model()->rowCount() == 0) return;
    const int row = static_cast<int>(random_() % unsigned(grid->model()->rowCount()));
    const QPointF place = grid->visualRect(grid->model()->index(row, 0)).center();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, place, grid->viewport()->mapToGlobal(place), Qt::LeftButton,
                        type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                        Qt::NoModifier);
      QApplication::sendEvent(grid->viewport(), &event);
    }
  }

  void Act() {
    if (QApplication::activeModalWidget() != nullptr) return;
    if (!taken_) {
      taken_ = true;
      Print("U " + Digest(window_));
      return;
    }
    Print("B");
    switch (random_() % 9) {
      case 0:
      case 1:
      case 2:
        Key(Qt::Key_F8, Qt::NoModifier);
        break;
      case 3:
        Key(Qt::Key_R, Qt::ControlModifier);
        break;
      case 4:
        ClickRow();
        break;
      case 5:
        Click("cmdLDam_0");
        break;
      case 6:
        Click("cmdIncrease_1");
        break;
      case 7:
        Key(Qt::Key_D, Qt::ControlModifier);
        break;
      default:
        // A look since an undo is kept with the next change only.
        Key(Qt::Key_Z, Qt::ControlModifier);
        Click("cmdLDam_1");
        break;
    }
    Print("A " + Digest(window_));
  }

  QWidget& window_;
  std::mt19937 random_;
  QTimer boxes_;
  QTimer acts_;
  bool taken_ = false;
};

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 3) return 2;
  const unsigned seed = static_cast<unsigned>(std::atoi(argv[2]));
  argc = 2;
  // The characters are named behind the settings on the very first run only.
  char* const characters = std::getenv("NG_CHARACTERS");
  char* arguments[] = {argv[0], argv[1], characters, nullptr};
  return ng::RunProgram(characters != nullptr ? 3 : argc, arguments, [seed](QWidget& window) {
    // Once the main window is there and what was not closed has been asked for.
    new Player(window, seed);
  });
}
