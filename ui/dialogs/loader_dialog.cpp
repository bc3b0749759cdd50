#include "ui/dialogs/loader_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeView>

#include "app/session.h"
#include "ui/widgets/directory_picker.h"
#include "ui/wiring/path_text.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

/// A label of the form with its mnemonic. The blanks in front indent it a little.
QString Caption(const char* label, char mnemonic) {
  QString text = QString::fromLatin1(label);
  return text.insert(text.indexOf(QLatin1Char(mnemonic)), QLatin1Char('&'));
}

QLabel* LabelFor(QWidget* buddy, const char* label, char mnemonic) {
  auto* caption = new QLabel(Caption(label, mnemonic), buddy->parentWidget());
  caption->setBuddy(buddy);
  return caption;
}

}  // namespace

LoaderDialog::LoaderDialog(const Session& session, const Perform& door, QWidget* parent)
    : FormDialog("frmLoader", QString::fromLatin1(LoaderForm::kCaption), session, door, parent),
      directories_(
          new DirectoryPicker(QStringLiteral("Drive1"), QStringLiteral("DirListBox"), this)),
      files_(new QListWidget(this)),
      unlisted_(new QLabel(this)) {
  resize(596, 398);
  files_->setObjectName(QStringLiteral("filesXML"));
  files_->setAccessibleName("Files");
  unlisted_->setObjectName(QStringLiteral("lblUnlisted"));
  unlisted_->setProperty("hidesEmpty", true);
  files_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  BuildLayout();
  Connect();
  Paint();
  files_->setFocus();
}

void LoaderDialog::BuildLayout() {
  QString hint = QString::fromLatin1(LoaderForm::kHint);
  auto* hintLabel = new QLabel(hint.replace(QLatin1String("&&"), QLatin1String("&")), this);
  hintLabel->setProperty("tone", "muted");
  auto* load = new QPushButton("&Load", this);
  load->setObjectName(QStringLiteral("cmdLoad"));
  load->setDefault(true);
  auto* cancel = new QPushButton("Cancel", this);
  cancel->setObjectName(QStringLiteral("cmdCancel"));
  cancel->setAutoDefault(false);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(6);
  buttons->addWidget(hintLabel, 1);
  for (QPushButton* button : {load, cancel}) {
    button->setMinimumSize(91, 30);
    buttons->addWidget(button);
  }

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(12, 10, 12, 12);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(4);
  grid->addWidget(LabelFor(directories_->Drives(), LoaderForm::kDrivesLabel, 'v'), 0, 0);
  grid->addWidget(directories_->Drives(), 1, 0);
  grid->addWidget(LabelFor(directories_->Tree(), LoaderForm::kDirectoryLabel, 'D'), 2, 0);
  grid->addWidget(directories_->Tree(), 3, 0);
  grid->addWidget(LabelFor(files_, LoaderForm::kFilesLabel, 'F'), 0, 1);
  grid->addWidget(files_, 1, 1, 3, 1);
  grid->addWidget(unlisted_, 4, 0, 1, 2);
  grid->addLayout(buttons, 5, 0, 1, 2);
  grid->setRowStretch(3, 1);
  // Both halves are equally wide, whatever their lists hold.
  for (QWidget* list :
       {static_cast<QWidget*>(directories_->Drives()), static_cast<QWidget*>(directories_->Tree()),
        static_cast<QWidget*>(files_)}) {
    list->setSizePolicy(QSizePolicy::Ignored, list->sizePolicy().verticalPolicy());
  }
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  grid->setRowMinimumHeight(5, 40);
  setTabOrder(directories_->Drives(), directories_->Tree());
  setTabOrder(directories_->Tree(), files_);
  setTabOrder(files_, load);
  setTabOrder(load, cancel);
}

void LoaderDialog::Connect() {
  connect(directories_, &DirectoryPicker::DirectoryChosen, this, [this](const QString& directory) {
    Do({"frmLoader.DirListBox", 0, PathText(directory)});
  });
  connect(files_, &QListWidget::itemSelectionChanged, this, &LoaderDialog::TakeSelection);
  connect(files_, &QListWidget::itemDoubleClicked, this, [this] { Do({"frmLoader.cmdLoad"}); });
}

void LoaderDialog::TakeSelection() {
  if (Painting()) return;
  // The form's list does not change in between, so the rows stay what they are.
  const std::vector<LoaderForm::File>& files = Forms().loader.filesXML;
  for (int i = 0; i < files_->count(); ++i) {
    const bool selected = files_->item(i)->isSelected();
    if (files[static_cast<std::size_t>(i)].selected == selected) continue;
    Send({selected ? "frmLoader.filesXML_Select" : "frmLoader.filesXML_Unselect", i, {}});
  }
  Paint();
}

}  // namespace ng
