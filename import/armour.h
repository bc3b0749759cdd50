#pragma once

#include <string>

#include "import/character_sheet.h"
#include "tracker/fight/player_record.h"

namespace ng {

/// What the worn armour and the carried load come to.
struct ArmourFigures {
  Integer ballistic;
  Integer impact;
  /// What layered armour takes from the combat pool.
  Integer combatPoolModifier;
  /// What heavy armour takes from Quickness.
  Integer quicknessModifier;
  /// Worn armour, carried weapons and carried gear, in kilograms.
  double weight = 0;
};

/// Weights in kilograms of what is worn and carried.
struct LoadWeights {
  double armour = 0;
  double weapons = 0;
  double gear = 0;
};

/// Adds up the lines that are checked; what is not worn or carried weighs nothing.
LoadWeights WeightsOf(const CharacterEntry& entry);

/// Whether a line is the armour of laced bones, which counts in full and is never the main armour.
bool IsBoneLace(const CarriedLine& line);

/// Adds up the worn armour. The piece of the largest ballistic rating (of equals the first) and
/// bone lace count in full, every other worn piece half, each half rounded to even (2.5 gives 2,
/// 3.5 gives 4).
ArmourFigures DeriveArmour(const CharacterEntry& entry);

/// The figures that a record holds.
ArmourFigures ArmourOf(const PlayerRecord& record);

/// Writes the figures into the record, the weight as plain text into `LastWeight`.
void StoreArmour(PlayerRecord& record, const ArmourFigures& figures);

}  // namespace ng
