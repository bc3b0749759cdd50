#include "ui/dialogs/options_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "app/session.h"
#include "ui/look/theme.h"
#include "ui/widgets/directory_picker.h"
#include "ui/wiring/path_text.h"

namespace ng {
namespace {

/// What the directories are for, for somebody who is new to the program.
QString FirstStartText() {
  return "Welcome. Choose the directory that holds your character files (*.ng3), and Forgekit's "
         "DATA "
         "directory, which has the tables of gear, ranges and skills that the import needs.";
}

/// When the settings take effect. At the first start the dialog comes before they are read, except
/// for the character directory. A settings file that was given is read but never written.
QString TimeText(OptionsDialog::Occasion occasion, bool fileGiven) {
  const bool first = occasion == OptionsDialog::Occasion::FirstStart;
  if (fileGiven) {
    return QString(first ? "" : "The character directory takes effect at once. ") +
           "The settings are written to the program's own tracker.ini and take effect when the "
           "program is started without a settings file.";
  }
  return first ? "The character directory takes effect at the next start; until then, browse to it "
                 "in the Open dialog. The other settings take effect now."
               : "The character directory takes effect at once. The tables of the DATA directory "
                 "are read, and the two switches take effect, at the next start.";
}

}  // namespace

OptionsDialog::OptionsDialog(const Session& session, const Perform& door, Occasion occasion,
                             QWidget* parent)
    : FormDialog("frmOptions", "Options", session, door, parent) {
  resize(720, 470);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(12, 10, 12, 12);
  column->setSpacing(8);
  if (occasion == Occasion::FirstStart) {
    resize(720, 540);
    auto* welcome = new QLabel(FirstStartText(), this);
    welcome->setWordWrap(true);
    column->addWidget(welcome);
  }
  auto* groups = new QHBoxLayout;
  groups->setSpacing(8);
  AddGroup(*groups, "Character directory", "NG3");
  AddGroup(*groups, "DATA directory", "Dat");
  column->addLayout(groups, 1);
  column->addWidget(BuildSwitches());
  auto* time =
      new QLabel(TimeText(occasion, !session.environment.location.commandLine.empty()), this);
  time->setProperty("tone", "muted");
  time->setWordWrap(true);
  column->addWidget(time);
  column->addLayout(BuildButtons());
  Paint();
}

void OptionsDialog::AddGroup(QBoxLayout& row, const QString& title, const char* word) {
  const QString suffix = QString::fromLatin1(word);
  auto* box = new QGroupBox(title, this);
  auto* picker =
      new DirectoryPicker(QStringLiteral("drv") + suffix, QStringLiteral("dir") + suffix, box);
  picker->Tree()->setAccessibleName(title);
  auto* path = new QLineEdit(box);
  path->setObjectName(QStringLiteral("txt") + suffix);
  path->setAccessibleName(title);
  path->setReadOnly(true);
  path->setFocusPolicy(Qt::ClickFocus);
  path->setFont(InterfaceFont(10, true));
  path->setProperty("emptyText", QString("\u2013 none \u2013"));
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(10, 12, 10, 10);
  column->setSpacing(6);
  column->addWidget(picker->Drives());
  column->addWidget(picker->Tree(), 1);
  auto* browse = new QPushButton("Browse...", box);
  browse->setObjectName(QStringLiteral("cmdBrowse") + suffix);
  browse->setAccessibleName(QStringLiteral("%1: browse").arg(title));
  browse->setToolTip("Pick the directory in the system's own chooser");
  browse->setAutoDefault(false);
  auto* chosen = new QHBoxLayout;
  chosen->setSpacing(6);
  chosen->addWidget(path, 1);
  chosen->addWidget(browse);
  column->addLayout(chosen);
  row.addWidget(box, 1);

  const std::string control = "frmOptions.dir" + suffix.toStdString();
  const auto choose = [this, control](const QString& directory) {
    Do({control, 0, PathText(directory)});
  };
  connect(picker, &DirectoryPicker::DriveChosen, this, choose);
  connect(picker, &DirectoryPicker::DirectoryChosen, this, choose);
  connect(browse, &QPushButton::clicked, this, [this, choose, title, path] {
    const QString shown = path->text();
    const QString from = QFileInfo(shown).isDir() ? shown : QDir::homePath();
    const QString directory = QFileDialog::getExistingDirectory(this, title, from);
    if (!directory.isEmpty()) choose(directory);
  });
}

QWidget* OptionsDialog::BuildSwitches() {
  auto* box = new QGroupBox("Switches", this);
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(10, 10, 10, 8);
  column->setSpacing(4);
  const auto add = [box, column](const char* name, const QString& text) {
    auto* check = new QCheckBox(text, box);
    check->setObjectName(QString::fromLatin1(name));
    column->addWidget(check);
  };
  add("chkCloneInit", "Copies take their original's initiative &roll");
  add("chkDisableNGDR", "Do not &use the dice roller");
  return box;
}

QBoxLayout* OptionsDialog::BuildButtons() {
  auto* ok = new QPushButton("OK", this);
  ok->setObjectName(QStringLiteral("cmdOK"));
  ok->setDefault(true);
  auto* cancel = new QPushButton("Cancel", this);
  cancel->setObjectName(QStringLiteral("cmdCancel"));
  cancel->setAutoDefault(false);
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  row->addStretch();
  for (QPushButton* button : {ok, cancel}) {
    button->setMinimumSize(91, 30);
    row->addWidget(button);
  }
  return row;
}

}  // namespace ng
