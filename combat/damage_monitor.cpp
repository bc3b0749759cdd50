#include "combat/damage_monitor.h"

#include "base/number_text.h"

namespace ng {

const DamageLevel& LevelOf(Track track, Integer boxes) {
  struct Threshold {
    int boxes;
    DamageLevel physical;
    DamageLevel stun;
  };
  static constexpr std::array<Threshold, 5> kLevels = {{
      {10, {"Dying", 'D', 3}, {"Unconscious", 'U', 3}},
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

void DamagePanel::Show(const PlayerRecord& record) {
  arPBDamage = {AtMost(record.CurDamPhysical, kBoxes), AtMost(record.CurDamStun, kBoxes)};
  lblPDam = PlainText(record.CurDamPhysical);
  lblSDam = PlainText(record.CurDamStun);
  lblOverDamage = record.CurDamPhysical > kBoxes ? PlainText(record.CurDamPhysical - kBoxes) : "0";
  lblPhysical = LevelOf(Track::Physical, record.CurDamPhysical).name;
  lblStun = LevelOf(Track::Stun, record.CurDamStun).name;
  lblDamMod = "DamMod:+" + PlainText(record.TNDamMod);
  ShowBound(*this, record);
}

void DamagePanel::Sync(PlayerRecord& record) const { StoreBound(*this, record); }

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
  const Integer shown = AtMost(boxes, DamagePanel::kBoxes);
  return LevelOf(track, TakePain(shown, pain)).modifierStep;
}

}  // namespace

void DamageMonitor::ApplyDamage(Track track, Integer& amount) {
  if (fight_.CurrentPCpointer == 0) return;
  PlayerRecord& record = fight_.Players[fight_.CurrentPCpointer];
  const bool dying = record.CurDamPhysical >= DamagePanel::kBoxes;
  if (track == Track::Physical && dying && amount > 0) amount = 1;
  Integer& boxes = track == Track::Physical ? record.CurDamPhysical : record.CurDamStun;
  boxes = AtLeast(boxes + amount, 0);
  UpdateDamageDisplay();
}

void DamageMonitor::ClearTrack(Track track) {
  if (fight_.CurrentPCpointer == 0) return;
  PlayerRecord& record = fight_.Players[fight_.CurrentPCpointer];
  (track == Track::Physical ? record.CurDamPhysical : record.CurDamStun) = 0;
  UpdateDamageDisplay();
}

void DamageMonitor::UpdateDamageDisplay() {
  if (fight_.CurrentPCpointer == 0) return;
  PlayerRecord& record = fight_.Players[fight_.CurrentPCpointer];
  if (record.CurDamStun > DamagePanel::kBoxes) {
    record.CurDamPhysical += record.CurDamStun - DamagePanel::kBoxes;
    record.CurDamStun = DamagePanel::kBoxes;
  }
  record.CondCode = ConditionCode(record);
  if (record.CurDamPhysical >= DamagePanel::kBoxes) record.RRSLT = 0;
  // Pain resistance is spent on stun first.
  Integer pain = record.PainResistance;
  record.TNDamMod = ModifierStep(Track::Stun, record.CurDamStun, pain);
  record.TNDamMod += ModifierStep(Track::Physical, record.CurDamPhysical, pain);
  record.FRSLT = record.RRSLT - record.TNDamMod;
  panel_.Show(record);
  sequencer_.SortInitiative();
}

}  // namespace ng
