#include "combat/damage_monitor.h"

#include "base/number_text.h"

namespace ng {

void DamagePanel::Show(const PlayerRecord& record) {
  ShowTracks(record);
  ShowModifier(record);
  ShowBound(*this, record);
}

void DamagePanel::ShowTracks(const PlayerRecord& record) {
  arPBDamage = {AtMost(record.CurDamPhysical, kTrackBoxes), AtMost(record.CurDamStun, kTrackBoxes)};
  lblPDam = PlainText(record.CurDamPhysical);
  lblSDam = PlainText(record.CurDamStun);
  lblOverDamage = IsDying(record) ? PlainText(record.CurDamPhysical - kTrackBoxes) : "0";
  lblPhysical = LevelOf(Track::Physical, record.CurDamPhysical).name;
  lblStun = LevelOf(Track::Stun, record.CurDamStun).name;
}

void DamagePanel::ShowModifier(const PlayerRecord& record) {
  lblDamMod = "DamMod:+" + PlainText(record.TNDamMod);
}

void DamagePanel::Sync(PlayerRecord& record) const { StoreBound(*this, record); }

void DamageMonitor::ApplyDamage(Track track, Integer& amount) {
  if (fight_.CurrentPCpointer == 0) return;
  AddBoxes(fight_.Players[fight_.CurrentPCpointer], track, amount);
  UpdateDamageDisplay();
}

void DamageMonitor::ClearTrack(Track track) {
  if (fight_.CurrentPCpointer == 0) return;
  BoxesOn(fight_.Players[fight_.CurrentPCpointer], track) = 0;
  UpdateDamageDisplay();
}

void DamageMonitor::UpdateDamageDisplay() {
  if (fight_.CurrentPCpointer == 0) return;
  PlayerRecord& record = fight_.Players[fight_.CurrentPCpointer];
  SettleTracks(record);
  panel_.ShowTracks(record);
  ScoreRoll(record);
  panel_.ShowModifier(record);
  sequencer_.SortInitiative();
}

}  // namespace ng
