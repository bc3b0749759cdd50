#include "ui/dialogs/prompts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>

#include "ui/dialogs/about_dialog.h"
#include "ui/dialogs/input_dialog.h"
#include "ui/dialogs/loader_dialog.h"
#include "ui/dialogs/options_dialog.h"
#include "ui/dialogs/recent_dialog.h"
#include "ui/dialogs/skill_level_dialog.h"
#include "ui/wiring/path_text.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

constexpr int kBoxWidth = 350;
constexpr qint64 kPatience = 250;  // Milliseconds.

const QString& Title() {
  static const QString title = QStringLiteral("NGtracker");
  return title;
}

/// "State File (*.ngt)|*.ngt" in the toolkit's form, which has the pattern in parentheses at the
/// end of the description.
QString ToolkitFilter(const std::string& filter) {
  const QStringList parts = ToQString(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString description = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    filters.append(QStringLiteral("%1 (%2)").arg(description, patterns));
  }
  return filters.join(QLatin1String(";;"));
}

std::optional<std::string> AskForFile(QWidget* parent, const FileDialog& dialog,
                                      QFileDialog::AcceptMode mode) {
  QFileDialog box(parent, ToQString(dialog.title), NativeText(dialog.directory),
                  ToolkitFilter(dialog.filter));
  box.setAcceptMode(mode);
  box.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                  : QFileDialog::AnyFile);
  if (mode == QFileDialog::AcceptSave) box.setLabelText(QFileDialog::LookIn, "Save in:");
  box.setDefaultSuffix(ToQString(dialog.defaultExtension));
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return std::nullopt;
  return PathText(box.selectedFiles().constFirst());
}

/// A progress box that cannot be closed: no other command may begin before the work is done.
class WorkBox : public QProgressDialog {
 public:
  using QProgressDialog::QProgressDialog;
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

/// A box with the application's title; returns the button that closed it.
QMessageBox::StandardButton Ask(QWidget* parent, const QString& text,
                                QMessageBox::StandardButtons buttons) {
  QMessageBox box(QMessageBox::NoIcon, Title(), text, buttons, parent);
  box.setTextFormat(Qt::PlainText);
  for (QAbstractButton* button : box.buttons()) button->setIcon({});
  // The box is a grid that takes its width from its contents.
  if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
    grid->addItem(new QSpacerItem(kBoxWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

void QtPrompts::SetMainWindow(QWidget& window, std::function<void()> paint) {
  mainWindow_ = &window;
  paint_ = std::move(paint);
}

QWidget* QtPrompts::Parent() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  // The focus goes back to the window that asked, which may be one beside the main one.
  QWidget* active = QApplication::activeWindow();
  return active != nullptr ? active : mainWindow_.data();
}

void QtPrompts::PaintMainWindow() const {
  if (mainWindow_ != nullptr) paint_();
}

void QtPrompts::Message(std::string_view text) {
  PaintMainWindow();
  QString shown = ToQString(text);
  shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  Ask(Parent(), shown, QMessageBox::Ok);
}

std::string QtPrompts::Input(std::string_view prompt) {
  PaintMainWindow();
  const Perform perform = [this](const Act& act) {
    door_(act);
    PaintMainWindow();
  };
  InputDialog dialog(Title(), ToQString(prompt), perform, Parent());
  return dialog.exec() == QDialog::Accepted ? FromQString(dialog.Answer()) : std::string();
}

void QtPrompts::Beep() { QApplication::beep(); }

std::optional<std::string> QtPrompts::OpenFile(const FileDialog& dialog) {
  return AskForFile(Parent(), dialog, QFileDialog::AcceptOpen);
}

std::optional<std::string> QtPrompts::SaveFile(const FileDialog& dialog) {
  return AskForFile(Parent(), dialog, QFileDialog::AcceptSave);
}

SaveChoice QtPrompts::AskToSave(std::string_view question) {
  const QMessageBox::StandardButton answer =
      Ask(Parent(), ToQString(question),
          QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  if (answer == QMessageBox::Save) return SaveChoice::Save;
  return answer == QMessageBox::Discard ? SaveChoice::Discard : SaveChoice::Cancel;
}

bool QtPrompts::AskToTakeUp(std::string_view question) {
  QMessageBox box(QMessageBox::NoIcon, Title(), ToQString(question), QMessageBox::NoButton,
                  Parent());
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText("After No it stays under File \u203A Recent Fights.");
  QPushButton* yes = box.addButton("&Take it up", QMessageBox::AcceptRole);
  QPushButton* no = box.addButton("&No", QMessageBox::RejectRole);
  box.setDefaultButton(yes);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes;
}

void QtPrompts::ShowModal(ModalForm form) {
  PaintMainWindow();
  switch (form) {
    case ModalForm::Loader:
      LoaderDialog(*session_, door_, Parent()).exec();
      break;
    case ModalForm::Options: {
      // Before there is a main window it is the first start that asks.
      const auto occasion = mainWindow_ == nullptr ? OptionsDialog::Occasion::FirstStart
                                                   : OptionsDialog::Occasion::Wanted;
      OptionsDialog(*session_, door_, occasion, Parent()).exec();
      break;
    }
    case ModalForm::SkillLevel:
      SkillLevelDialog(*session_, door_, Parent()).exec();
      break;
    case ModalForm::Recent:
      RecentDialog(*session_, door_, Parent()).exec();
      break;
    case ModalForm::About:
      AboutDialog(Parent()).exec();
      break;
  }
}

void QtPrompts::ShowProgress(std::string_view what, int done, int total) {
  if (done >= total) {
    progress_.reset();
    workTime_.invalidate();
    return;
  }
  if (!workTime_.isValid()) workTime_.start();
  if (progress_ == nullptr) {
    if (workTime_.elapsed() < kPatience) return;
    progress_ = std::make_unique<WorkBox>(ToQString(what), QString(), 0, total, Parent());
    progress_->setWindowTitle(Title());
    progress_->setMinimumWidth(kBoxWidth);
    progress_->setMinimumDuration(0);
    progress_->setWindowModality(Qt::ApplicationModal);
  }
  progress_->setValue(done);
}

}  // namespace ng
