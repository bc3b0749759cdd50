#pragma once

#include <array>
#include <span>
#include <string>

#include "base/integer.h"
#include "combat/bound_control.h"
#include "tracker/fight/fight.h"
#include "tracker/fight/player_record.h"
#include "tracker/sequencer.h"

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

/// The condition code of a record: the stun letter and the physical letter ("0L", "UD").
std::string ConditionCode(const PlayerRecord& record);

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

  static std::span<const BoundControl<DamagePanel>> Bound() {
    static constexpr auto rows =
        std::to_array({Bind<&DamagePanel::txtPainResistance, &PlayerRecord::PainResistance>(
            "txtPainResistance")});
    return rows;
  }

  /// Fills every control from a record.
  void Show(const PlayerRecord& record);
  /// Writes the panel's box into the record.
  void Sync(PlayerRecord& record) const;
};

/// The condition monitor of the displayed combatant: two tracks of ten boxes, stun that runs over
/// into physical damage, and the wound modifier that follows from both. With nobody displayed
/// nothing happens.
class DamageMonitor {
 public:
  DamageMonitor(Fight& fight, DamagePanel& panel, Sequencer& sequencer)
      : fight_(fight), panel_(panel), sequencer_(sequencer) {}

  /// Adds `amount` boxes to a track, takes them away when it is negative; a track does not fall
  /// below 0. From the tenth physical box on every further physical wound, whatever its level, is
  /// one box of overflow, and `amount` becomes 1; that is deliberate.
  void ApplyDamage(Track track, Integer& amount);
  void ClearTrack(Track track);
  /// Works out the overflow, the condition code, the wound modifier and the initiative result,
  /// shows them and orders the table anew.
  void UpdateDamageDisplay();

 private:
  Fight& fight_;
  DamagePanel& panel_;
  Sequencer& sequencer_;
};

}  // namespace ng
