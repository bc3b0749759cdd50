#include "combat/skill_tests.h"

#include <array>

#include "base/number_text.h"
#include "base/text.h"
#include "import/item_lines.h"

namespace ng {
namespace {

struct SkillSlot {
  std::string PlayerRecord::*name;
  Integer PlayerRecord::*value;
};

constexpr std::array<SkillSlot, 3> kSlots = {{
    {&PlayerRecord::SkillPrimaryName, &PlayerRecord::SkillPrimaryValue},
    {&PlayerRecord::SkillSecondaryName, &PlayerRecord::SkillSecondaryValue},
    {&PlayerRecord::SkillUnarmedName, &PlayerRecord::SkillUnarmedValue},
}};

constexpr int kUnarmedWeapon = 3;

bool FightsByHand(const std::string& line) {
  return Contains(line, "unarmed") || Contains(line, "ma:") || Contains(line, "cyber");
}

}  // namespace

void SkillTests::ChooseSkill(SkillUse use, const std::string& line) {
  if (fight_.CurrentPCpointer == 0 || line.empty()) return;
  if (use == SkillUse::Unarmed && !FightsByHand(line)) return;
  const SkillSlot& slot = kSlots[static_cast<std::size_t>(use)];
  PlayerRecord& record = Displayed();
  lblSkill = Replaced(line, "\t", "      ");
  record.Skill = lblSkill;
  record.*slot.name = line;
  record.*slot.value = 0;
  levels_.SkillString(lblSkill);
  if (levels_.valid()) prompts_.ShowModal(ModalForm::SkillLevel);
  // A dialog closed without a choice gives the level that was chosen last.
  record.*slot.value = levels_.SelValue;
}

void SkillTests::Unarmed() {
  if (!firing_.HasTurn()) {
    prompts_.Message("Can only fight on PC's turn!");
    return;
  }
  PlayerRecord& record = Displayed();
  record.SkillWeapType = kUnarmedWeapon;
  roller_.lblSkill = record.SkillUnarmedName;
  roller_.skill = PlainText(record.SkillUnarmedValue);
  // Nothing of an earlier shot may stand beside a blow.
  roller_.DamageCode = kUnarmedDamage;
  roller_.BulletCount = 0;
  StartTest(TestPage::Melee);
}

void SkillTests::BodyTest() {
  if (firing_.HasTurn()) {
    prompts_.Message("Cannot Dodge/Body on your turn");
    return;
  }
  StartTest(TestPage::BodyDodge);
}

void SkillTests::StartTest(TestPage page) {
  roller_.tabTest_Click(page);
  if (!settings_.DisableNGDR) roller_.visible = true;
}

}  // namespace ng
