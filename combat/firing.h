#pragma once

#include <string_view>

#include "app/settings/settings.h"
#include "base/ports.h"
#include "combat/recoil.h"
#include "combat/weapons.h"
#include "import/character_sheet.h"
#include "import/reference_tables.h"
#include "notes/gm_log.h"
#include "roller/dice_roller.h"
#include "tracker/fight/fight.h"
#include "tracker/turn.h"

namespace ng {

/// The class code in the caption's last parentheses, empty when there is none.
std::string_view ClassCode(std::string_view caption);

/// The two weapons of the displayed combatant: firing, reloading, and what each adds to the target
/// number.
class Firing {
 public:
  static constexpr int kMostFullAuto = 18;

  Firing(Fight& fight, const CharacterTable& characters, WeaponPanel& panel, DiceRoller& roller,
         GmLog& log, Prompts& prompts, const Settings& settings)
      : fight_(fight),
        characters_(characters),
        panel_(panel),
        roller_(roller),
        log_(log),
        prompts_(prompts),
        settings_(settings) {}

  /// Whether the displayed combatant may attack.
  bool HasTurn() const { return MayActNow(fight_, fight_.CurrentPCpointer); }
  /// The last firing action was for two rounds or more.
  Boolean BurstFire() const { return burstFire_; }

  /// Fires so many rounds, as far as the magazine goes, and starts the test. Refused out of turn
  /// and with an empty weapon.
  void Fire(Weapon weapon, Integer shots);
  /// The same for a number of rounds that is asked for, 1 to 18.
  void FullAuto(Weapon weapon);
  void Reload(Weapon weapon);
  /// Empties the hand.
  void Disarm(Weapon weapon);
  /// Takes a line of the weapon list into the hand, with the ranges of its class.
  void Ready(Weapon weapon, std::string_view line, const RangeTable& ranges);

  /// Works out recoil and the total modifier of both weapons, shows them and hands them to the dice
  /// roller.
  void UpdateWeaponModifiers();
  /// The total modifiers of a combatant's two weapons.
  PerWeapon<Integer> TotalsOf(const PlayerRecord& record) const;

 private:
  PlayerRecord& Displayed() { return fight_.Players[fight_.CurrentPCpointer]; }
  PerWeapon<WeaponModifier> ModifiersOf(const PlayerRecord& record) const;
  bool MayFire(Weapon weapon);
  void HandOverToRoller(Weapon weapon, Integer rounds);

  Fight& fight_;
  const CharacterTable& characters_;
  WeaponPanel& panel_;
  DiceRoller& roller_;
  GmLog& log_;
  Prompts& prompts_;
  const Settings& settings_;
  Boolean burstFire_;
};

}  // namespace ng
