#include "ui/main/combat_page.h"

#include <QBoxLayout>
#include <QGroupBox>

#include "ui/main/damage_group.h"
#include "ui/main/pools_group.h"
#include "ui/main/skills_group.h"
#include "ui/main/weapons_group.h"
#include "ui/widgets/note_edit.h"

namespace ng {
namespace {

constexpr int kMaxContentWidth = 1720;
/// Height of the window from which the note is shown here too.
constexpr int kNoteFromHeight = 900;

QGroupBox* MakeNoteGroup(QWidget* parent) {
  QGroupBox* group = MakeGroup("Notes", parent);
  auto* text = new NoteEdit(group);
  text->setObjectName("txtNotes2");
  text->setAccessibleName("Note on the combatant");
  text->setToolTip("The note on the combatant; the Notes page shows the same");
  text->setMinimumSize(64, 32);
  text->setTabChangesFocus(true);
  MakeGroupRows(group)->addWidget(text, 1);
  return group;
}

}  // namespace

CombatPage::CombatPage(QWidget* parent) : FittedPage(parent) {
  auto* content = new QWidget(this);
  QVBoxLayout* left = MakeColumn();
  left->addWidget(MakeDamageGroup(content));
  left->addWidget(MakeWeaponsGroup(content), 20);
  note_ = MakeNoteGroup(content);
  note_->hide();
  // The note gets what the weapons leave.
  left->addWidget(note_, 1);
  // Keeps the groups together at the top where they have grown as far as they may.
  left->setAlignment(Qt::AlignTop);
  QVBoxLayout* right = MakeColumn();
  right->addWidget(MakePoolsGroup(content));
  right->addWidget(MakeSkillsGroup(content), 1);

  content->setMaximumWidth(kMaxContentWidth);
  auto* columns = new QHBoxLayout(content);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(kGroupGap);
  columns->addLayout(left, 2);
  columns->addLayout(right, 1);
  auto* page = new QHBoxLayout(this);
  page->setContentsMargins(0, kPageMargin, 0, 0);
  page->addWidget(content);

  MeasureText();
}

void CombatPage::resizeEvent(QResizeEvent* event) {
  note_->setVisible(window()->height() >= kNoteFromHeight);
  FittedPage::resizeEvent(event);
}

}  // namespace ng
