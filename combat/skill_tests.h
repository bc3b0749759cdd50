#pragma once

#include <string>

#include "app/settings/settings.h"
#include "base/ports.h"
#include "combat/firing.h"
#include "roller/dice_roller.h"
#include "roller/skill_level.h"
#include "tracker/fight/fight.h"

namespace ng {

/// What a chosen skill is used for.
enum class SkillUse { Primary, Secondary, Unarmed };

/// The skills that the displayed combatant fights with, and its unarmed and body tests.
class SkillTests {
 public:
  SkillTests(Fight& fight, const Firing& firing, DiceRoller& roller, SkillLevelForm& levels,
             Prompts& prompts, const Settings& settings)
      : fight_(fight),
        firing_(firing),
        roller_(roller),
        levels_(levels),
        prompts_(prompts),
        settings_(settings) {}

  /// The skill chosen last, as shown.
  std::string lblSkill;

  /// Takes a line of the active skills; its level is asked for when it offers two. For unarmed
  /// combat only lines that hold "unarmed", "ma:" or "cyber" count, any other is ignored.
  void ChooseSkill(SkillUse use, const std::string& line);
  /// Starts the unarmed test, in the combatant's turn only.
  void Unarmed();
  /// Starts the dodge and body test, a reaction to somebody else's action and so refused in the
  /// combatant's own turn.
  void BodyTest();

 private:
  PlayerRecord& Displayed() { return fight_.Players[fight_.CurrentPCpointer]; }
  void StartTest(TestPage page);

  Fight& fight_;
  const Firing& firing_;
  DiceRoller& roller_;
  SkillLevelForm& levels_;
  Prompts& prompts_;
  const Settings& settings_;
};

}  // namespace ng
