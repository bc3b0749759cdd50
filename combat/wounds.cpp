#include "combat/wounds.h"

#include <array>

namespace ng {
namespace {

/// Takes the resisted boxes off; pain resistance that is left over goes to the next track.
Integer TakePain(Integer boxes, Integer& pain) {
  if (boxes >= pain) {
    const Integer felt = boxes - pain;
    pain = 0;
    return felt;
  }
  pain -= boxes;
  return 0;
}

/// The part of the wound modifier that comes from one track, 0 to 3.
Integer ModifierStep(Track track, Integer boxes, Integer& pain) {
  const Integer shown = AtMost(boxes, kTrackBoxes);
  return LevelOf(track, TakePain(shown, pain)).modifierStep;
}

}  // namespace

const DamageLevel& LevelOf(Track track, Integer boxes) {
  struct Threshold {
    int boxes;
    DamageLevel physical;
    DamageLevel stun;
  };
  static constexpr std::array<Threshold, 5> kLevels = {{
      {kTrackBoxes, {"Dying", 'D', 3}, {"Unconscious", 'U', 3}},
      {6, {"Ser. Phys. Damage", 'S', 3}, {"Ser. Stun Damage", 'S', 3}},
      {3, {"Mod. Phys. Damage", 'M', 2}, {"Mod. Stun Damage", 'M', 2}},
      {1, {"Light Phys. Damage", 'L', 1}, {"Light Stun Damage", 'L', 1}},
      {0, {"No Phys. Damage", '0', 0}, {"No Stun Damage", '0', 0}},
  }};
  std::size_t i = 0;
  while (i + 1 < kLevels.size() && boxes < kLevels[i].boxes) ++i;
  return track == Track::Physical ? kLevels[i].physical : kLevels[i].stun;
}

std::string ConditionCode(const PlayerRecord& record) {
  return {LevelOf(Track::Stun, record.CurDamStun).letter,
          LevelOf(Track::Physical, record.CurDamPhysical).letter};
}

Integer& BoxesOn(PlayerRecord& record, Track track) {
  return track == Track::Physical ? record.CurDamPhysical : record.CurDamStun;
}

void AddBoxes(PlayerRecord& record, Track track, Integer& amount) {
  if (track == Track::Physical && IsDying(record) && amount > 0) amount = 1;
  Integer& boxes = BoxesOn(record, track);
  boxes = AtLeast(boxes + amount, 0);
}

void SettleTracks(PlayerRecord& record) {
  if (record.CurDamStun > kTrackBoxes) {
    record.CurDamPhysical += record.CurDamStun - kTrackBoxes;
    record.CurDamStun = kTrackBoxes;
  }
  record.CondCode = ConditionCode(record);
  if (IsDying(record)) record.RRSLT = 0;
  Integer pain = record.PainResistance;
  record.TNDamMod = ModifierStep(Track::Stun, record.CurDamStun, pain);
  record.TNDamMod += ModifierStep(Track::Physical, record.CurDamPhysical, pain);
}

void ScoreRoll(PlayerRecord& record) { record.FRSLT = record.RRSLT - record.TNDamMod; }

}  // namespace ng
