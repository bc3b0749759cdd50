#include "combat/weapons.h"

namespace ng {
namespace {

template <typename T>
using Member = T PlayerRecord::*;

/// The figures of a weapon in hand: the record's field, the label, and where it is put from.
struct FigureFields {
  PerWeapon<Member<std::string>> fields;
  PerWeapon<std::string> WeaponPanel::*label;
  std::string WeaponFigures::*figure;
};
constexpr std::array<FigureFields, 3> kFigures = {{
    {{&PlayerRecord::PrimWeapStatDamage, &PlayerRecord::SecWeapStatDamage},
     &WeaponPanel::lblDamage,
     &WeaponFigures::damage},
    {{&PlayerRecord::PrimWeapStatCclrch, &PlayerRecord::SecWeapStatCclrch},
     &WeaponPanel::lblConceal,
     &WeaponFigures::concealability},
    {{&PlayerRecord::PrimWeapStatAmmo, &PlayerRecord::SecWeapStatAmmo},
     &WeaponPanel::lblAmmo,
     &WeaponFigures::ammunition},
}};

constexpr PerWeapon<Member<std::string>> kHands = {&PlayerRecord::PrimHand, &PlayerRecord::SecHand};
constexpr PerWeapon<std::array<Member<std::string>, kRanges>> kRangeFields = {{
    {&PlayerRecord::PrimWeapStatRng1, &PlayerRecord::PrimWeapStatRng2,
     &PlayerRecord::PrimWeapStatRng3, &PlayerRecord::PrimWeapStatRng4},
    {&PlayerRecord::SecWeapStatRng1, &PlayerRecord::SecWeapStatRng2, &PlayerRecord::SecWeapStatRng3,
     &PlayerRecord::SecWeapStatRng4},
}};

/// The check boxes of the sights, in the order of Sight.
constexpr std::array<PerWeapon<bool> WeaponPanel::*, 3> kSights = {
    &WeaponPanel::chkSmL, &WeaponPanel::chkLaserSight, &WeaponPanel::chkSmtGoggles};

}  // namespace

const HandFields& FieldsOf(Weapon weapon) {
  using R = PlayerRecord;
  static constexpr PerWeapon<HandFields> kFields = {{
      {&R::PrimHand, &R::PrimWeapStatDamage, &R::PrimWeapStatAmmo, &R::PrimAmmo, &R::TBTTPrim,
       &R::RCPrim, &R::GyroPrim, &R::SmLPrim, &R::LaserPrim, &R::SmtGogPrim, &R::SkillPrimaryName,
       &R::SkillPrimaryValue, &R::RangeSelPrim},
      {&R::SecHand, &R::SecWeapStatDamage, &R::SecWeapStatAmmo, &R::SecAmmo, &R::TBTTSec, &R::RCSec,
       &R::GyroSec, &R::SmLSec, &R::LaserSec, &R::SmtGogSec, &R::SkillSecondaryName,
       &R::SkillSecondaryValue, &R::RangeSelSec},
  }};
  return kFields[static_cast<std::size_t>(weapon)];
}

void SetWeapon(PlayerRecord& record, Weapon weapon, const WeaponFigures& figures) {
  const auto w = static_cast<std::size_t>(weapon);
  record.*kHands[w] = figures.caption;
  for (const FigureFields& field : kFigures) record.*field.fields[w] = figures.*field.figure;
  for (std::size_t i = 0; i < kRanges; ++i) record.*kRangeFields[w][i] = figures.ranges[i];
}

std::span<const BoundControl<WeaponPanel>> WeaponPanel::Bound() {
  using P = WeaponPanel;
  using R = PlayerRecord;
  static constexpr auto rows = std::to_array({
      Bind<&P::txtShots, &R::PrimAmmo, &R::SecAmmo>("txtShots", "{hand} rounds fired"),
      Bind<&P::txtTBTT, &R::TBTTPrim, &R::TBTTSec>("txtTBTT", "{hand} rounds this turn"),
      Bind<&P::txtRC, &R::RCPrim, &R::RCSec>("txtRC", "{hand} recoil compensation"),
      Bind<&P::txtGyro, &R::GyroPrim, &R::GyroSec>("txtGyro", "{hand} gyro compensation"),
      BindStored<&P::txtURC, &R::URCPrim, &R::URCSec>("txtURC"),
      BindStored<&P::chkSmL, &R::SmLPrim, &R::SmLSec>("chkSmL"),
      BindStored<&P::chkLaserSight, &R::LaserPrim, &R::LaserSec>("chkLaserSight"),
      BindStored<&P::chkSmtGoggles, &R::SmtGogPrim, &R::SmtGogSec>("chkSmtGoggles"),
      Bind<&P::chkTwoGuns, &R::TwoGuns>("chkTwoGuns", "two guns"),
  });
  return rows;
}

void WeaponPanel::Show(const PlayerRecord& record) {
  for (const Weapon weapon : {Weapon::Primary, Weapon::Secondary}) ShowWeapon(record, weapon);
  ShowBound(*this, record);
  optRangeSel = {record.RangeSelPrim.Value(), record.RangeSelSec.Value()};
}

void WeaponPanel::ShowWeapon(const PlayerRecord& record, Weapon weapon) {
  const auto w = static_cast<std::size_t>(weapon);
  (weapon == Weapon::Primary ? lblPrimary : lblSecondary) = record.*kHands[w];
  for (const FigureFields& field : kFigures) (this->*field.label)[w] = record.*field.fields[w];
  std::array<std::string, kRanges>& ranges = weapon == Weapon::Primary ? lblPRng : lblSRng;
  for (std::size_t i = 0; i < kRanges; ++i) ranges[i] = record.*kRangeFields[w][i];
}

void WeaponPanel::ClickSight(Weapon weapon, Sight sight) {
  const auto w = static_cast<std::size_t>(weapon);
  bool& chosen = (this->*kSights[static_cast<std::size_t>(sight)])[w];
  const bool checked = !chosen;
  if (checked) {
    for (const auto other : kSights) (this->*other)[w] = false;
  }
  chosen = checked;
}

void WeaponPanel::Sync(PlayerRecord& record) const { StoreBound(*this, record); }

}  // namespace ng
