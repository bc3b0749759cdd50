#pragma once

#include <array>
#include <string>

#include "base/integer.h"
#include "tracker/player_record.h"

namespace ng {

/// A wound level of one track: how it is named, its letter in the condition code, and what it adds
/// to the wound modifier.
struct DamageLevel {
  const char* name;
  char letter;
  int modifierStep;
};

/// The level of a number of boxes, 0 to 10: none, light from 1, moderate from 3, serious from 6,
/// unconscious or dying at 10. More than 10 boxes count as 10.
const DamageLevel& LevelOf(Track track, Integer boxes);

/// The damage panel of the displayed combatant.
struct DamagePanel {
  static constexpr int kBoxes = 10;

  /// Filled boxes of the bars, 0 to 10; index 0 is physical, 1 stun.
  std::array<Integer, 2> arPBDamage;
  std::string lblPDam;
  std::string lblSDam;
  std::string lblOverDamage;
  std::string lblPhysical;
  std::string lblStun;
  std::string lblDamMod;
  std::string txtPainResistance;

  /// Fills every control from a record.
  void Show(const PlayerRecord& record);
  /// Writes the panel's box into the record.
  void Sync(PlayerRecord& record) const;
};

}  // namespace ng
