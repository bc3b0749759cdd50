#pragma once

#include <string_view>

#include "base/integer.h"
#include "combat/weapons.h"
#include "import/character_sheet.h"
#include "tracker/fight/player_record.h"

namespace ng {

// What the weapons of a record come to: rounds left, recoil, and the target-number modifiers.

/// Whether a weapon kicks twice as hard: shotguns, machine guns, autocannon and minigun by the
/// class code in the caption.
bool IsHeavyWeapon(std::string_view caption);

/// The ambidexterity level 0 to 4 of a sheet, from its first edge of that name; 0 without a sheet.
Integer CheckPCAmbidexterity(const CharacterEntry* entry);

/// Rounds left in the magazine: its capacity less the rounds fired; 0 when it has no text.
Integer AmmoLeft(const PlayerRecord& record, Weapon weapon);

/// The rounds that count for recoil. The first round kicks too late to matter; two or three count
/// one less unless the last firing action was a burst.
Integer RecoilRounds(Integer rounds, Boolean burst);

/// The recoil that compensation and gyro leave over, at least 0; doubled for a heavy weapon.
Integer UncompensatedRecoil(const PlayerRecord& record, Weapon weapon, Boolean burst);

/// The uncompensated recoil and the total target-number modifier of one weapon.
struct WeaponModifier {
  Integer recoil;
  Integer total;
};

/// Both weapons: recoil, sights, two guns at once with this level of ambidexterity, wounds.
PerWeapon<WeaponModifier> WeaponModifiers(const PlayerRecord& record, Integer ambidexterity,
                                          Boolean burst);

/// Adds rounds just fired to the weapon's counts: since the last reload and in this turn.
void CountRounds(PlayerRecord& record, Weapon weapon, Integer rounds);

}  // namespace ng
