#include "combat/damage_monitor.h"

#include <algorithm>

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

void DamagePanel::Show(const PlayerRecord& record) {
  arPBDamage = {std::min<Integer>(record.CurDamPhysical, kBoxes),
                std::min<Integer>(record.CurDamStun, kBoxes)};
  lblPDam = PlainText(record.CurDamPhysical);
  lblSDam = PlainText(record.CurDamStun);
  lblOverDamage = record.CurDamPhysical > kBoxes ? PlainText(record.CurDamPhysical - kBoxes) : "0";
  lblPhysical = LevelOf(Track::Physical, record.CurDamPhysical).name;
  lblStun = LevelOf(Track::Stun, record.CurDamStun).name;
  lblDamMod = "DamMod:+" + PlainText(record.TNDamMod);
  txtPainResistance = PlainText(record.PainResistance);
}

void DamagePanel::Sync(PlayerRecord& record) const {
  record.PainResistance = LenientInteger(txtPainResistance);
}

}  // namespace ng
