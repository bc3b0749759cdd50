#include "ui/main/notes_page.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "ui/widgets/elided_label.h"
#include "ui/widgets/note_edit.h"

namespace ng {
namespace {

constexpr int kFileButtonWidth = 84;
constexpr int kLeastFileNameWidth = 120;

QPushButton* MakeFileButton(const Naming& naming, const QString& text, QWidget* parent) {
  QPushButton* button = MakeButton(naming, text, parent);
  button->setFixedSize(kFileButtonWidth, kButtonHeight);
  return button;
}

QHBoxLayout* MakeFileRow(QWidget* parent) {
  QLineEdit* file =
      MakeBox({"txtNoteFileName", "File name of the note", "The file that the note is kept in"},
              kLeastFileNameWidth, parent);
  file->setMaximumWidth(QWIDGETSIZE_MAX);
  file->setAlignment(Qt::AlignLeft);
  QLabel* caption = MakeCaption("File &name", parent);
  caption->setBuddy(file);
  QHBoxLayout* row = MakeRow(6);
  row->addWidget(caption);
  row->addWidget(file, 1);
  row->addWidget(MakeFileButton({"cmdNoteLoad", "Load the note", "Read the note from the file"},
                                "L&oad", parent));
  row->addWidget(MakeFileButton({"cmdNoteSave", "Save the note", "Write the note to the file"},
                                "&Save", parent));
  return row;
}

QGroupBox* MakeNote(QWidget* parent) {
  QGroupBox* group = MakeGroup("Notes", parent);
  QVBoxLayout* rows = MakeGroupRows(group);
  rows->setSpacing(6);
  ElidedLabel* name = MakeElided("lblNameZ", group);
  Embolden(name);
  QHBoxLayout* title = MakeRow(8);
  title->addWidget(MakeCaption("Note on", group));
  title->addWidget(name, 1);
  auto* text = new NoteEdit(group);
  text->setObjectName("txtNotes");
  text->setAccessibleName("Note on the combatant");
  text->setToolTip("Free text on the combatant, kept in a file of its own");
  text->setTabChangesFocus(true);
  rows->addLayout(title);
  rows->addWidget(text, 1);
  rows->addLayout(MakeFileRow(group));
  return group;
}

QGroupBox* MakeContacts(QWidget* parent) {
  QGroupBox* group = MakeGroup("Contacts", parent);
  MakeGroupRows(group)->addWidget(
      MakeList({"lstContacts", "Contacts", "Contacts and their levels"},
               {ListColumn{"Name"}, ListColumn{"Level", 56, Qt::AlignRight}}, group),
      1);
  return group;
}

}  // namespace

NotesPage::NotesPage(QWidget* parent) : FittedPage(parent) {
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, kPageMargin, 0, 0);
  columns->setSpacing(kGroupGap);
  columns->addWidget(MakeNote(this), 3);
  columns->addWidget(MakeContacts(this), 2);
}

}  // namespace ng
