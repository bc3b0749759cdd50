#pragma once

#include <array>
#include <span>
#include <string>

#include "base/integer.h"
#include "combat/bound_control.h"
#include "combat/wounds.h"
#include "tracker/fight/fight.h"
#include "tracker/fight/player_record.h"
#include "tracker/sequencer.h"

namespace ng {

/// The damage panel of the displayed combatant.
struct DamagePanel {
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
            "txtPainResistance", "pain resistance")});
    return rows;
  }

  /// Fills every control from a record.
  void Show(const PlayerRecord& record);
  /// Fills what shows the two tracks.
  void ShowTracks(const PlayerRecord& record);
  void ShowModifier(const PlayerRecord& record);
  /// Writes the panel's box into the record.
  void Sync(PlayerRecord& record) const;
};

/// The condition monitor of the displayed combatant. With nobody displayed nothing happens.
class DamageMonitor {
 public:
  DamageMonitor(Fight& fight, DamagePanel& panel, Sequencer& sequencer)
      : fight_(fight), panel_(panel), sequencer_(sequencer) {}

  /// Adds boxes to a track, or takes them away when `amount` is negative; see AddBoxes.
  void ApplyDamage(Track track, Integer& amount);
  void ClearTrack(Track track);
  /// Works out what follows from the two tracks, shows it and orders the table again. The tracks
  /// are shown even where the new score ends in Overflow.
  void UpdateDamageDisplay();

 private:
  Fight& fight_;
  DamagePanel& panel_;
  Sequencer& sequencer_;
};

}  // namespace ng
