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

#include "ui/look/theme.h"
#include "ui/widgets/directory_picker.h"
#include "ui/wiring/path_text.h"

namespace ng {
namespace {

/// What the directories are for, to whom has not seen the program before.
QString FirstStartText() {
  return OptionsDialog::tr(
      "Welcome. Please say where the character files (*.ng3) lie that you import combatants from, "
      "and where Forgekit's DATA directory is, with the tables of gear, ranges and skills that the "
      "import needs.");
}

/// At the first start the dialog comes before the settings are read, all but the character
/// directory; later on only the character directory is asked for again and again.
QString TimeText(OptionsDialog::Occasion occasion) {
  return occasion == OptionsDialog::Occasion::FirstStart
             ? OptionsDialog::tr(
                   "The character directory takes effect at the next start; for today, find the "
                   "files in the Open dialog. All else takes effect now.")
             : OptionsDialog::tr(
                   "The character directory takes effect at once. The tables of the DATA directory "
                   "are read, and the two switches take effect, at the next start.");
}

}  // namespace

OptionsDialog::OptionsDialog(const Session& session, const Perform& door, Occasion occasion,
                             QWidget* parent)
    : FormDialog("frmOptions", tr("Options"), session, door, parent) {
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
  AddGroup(*groups, tr("Character directory"), "NG3");
  AddGroup(*groups, tr("DATA directory"), "Dat");
  column->addLayout(groups, 1);
  column->addWidget(BuildSwitches());
  auto* time = new QLabel(TimeText(occasion), this);
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
  path->setProperty("emptyText", tr("\u2013 none \u2013"));
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(10, 12, 10, 10);
  column->setSpacing(6);
  column->addWidget(picker->Drives());
  column->addWidget(picker->Tree(), 1);
  auto* browse = new QPushButton(tr("Browse..."), box);
  browse->setObjectName(QStringLiteral("cmdBrowse") + suffix);
  browse->setAccessibleName(tr("%1: browse").arg(title));
  browse->setToolTip(tr("Pick the directory in the system's own chooser"));
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
  auto* box = new QGroupBox(tr("Switches"), this);
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(10, 10, 10, 8);
  column->setSpacing(4);
  const auto add = [box, column](const char* name, const QString& text) {
    auto* check = new QCheckBox(text, box);
    check->setObjectName(QString::fromLatin1(name));
    column->addWidget(check);
  };
  add("chkCloneInit", tr("Copies take their original's initiative &roll"));
  add("chkDisableNGDR", tr("Do not &use the dice roller"));
  return box;
}

QBoxLayout* OptionsDialog::BuildButtons() {
  auto* ok = new QPushButton(tr("OK"), this);
  ok->setObjectName(QStringLiteral("cmdOK"));
  ok->setDefault(true);
  auto* cancel = new QPushButton(tr("Cancel"), this);
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
