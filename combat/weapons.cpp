#include "combat/weapons.h"

namespace ng {
namespace {

template <typename T>
using Member = T PlayerRecord::*;

/// A control of the panel with the record's fields of the two weapons.
struct TextPair {
  PerWeapon<std::string> WeaponPanel::*control;
  PerWeapon<Member<std::string>> fields;
};
struct CheckPair {
  PerWeapon<bool> WeaponPanel::*control;
  PerWeapon<Member<Integer>> fields;
};

/// The boxes that the game master edits.
constexpr std::array<TextPair, 5> kBoxes = {{
    {&WeaponPanel::txtShots, {&PlayerRecord::PrimAmmo, &PlayerRecord::SecAmmo}},
    {&WeaponPanel::txtTBTT, {&PlayerRecord::TBTTPrim, &PlayerRecord::TBTTSec}},
    {&WeaponPanel::txtRC, {&PlayerRecord::RCPrim, &PlayerRecord::RCSec}},
    {&WeaponPanel::txtGyro, {&PlayerRecord::GyroPrim, &PlayerRecord::GyroSec}},
    {&WeaponPanel::txtURC, {&PlayerRecord::URCPrim, &PlayerRecord::URCSec}},
}};

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

constexpr std::array<CheckPair, 3> kSights = {{
    {&WeaponPanel::chkSmL, {&PlayerRecord::SmLPrim, &PlayerRecord::SmLSec}},
    {&WeaponPanel::chkLaserSight, {&PlayerRecord::LaserPrim, &PlayerRecord::LaserSec}},
    {&WeaponPanel::chkSmtGoggles, {&PlayerRecord::SmtGogPrim, &PlayerRecord::SmtGogSec}},
}};

constexpr PerWeapon<std::size_t> kBoth = {0, 1};

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

void WeaponPanel::Show(const PlayerRecord& record) {
  for (const std::size_t w : kBoth) {
    ShowWeapon(record, static_cast<Weapon>(w));
    for (const TextPair& box : kBoxes) (this->*box.control)[w] = record.*box.fields[w];
    for (const CheckPair& sight : kSights) {
      (this->*sight.control)[w] = record.*sight.fields[w] != 0;
    }
  }
  optRangeSel = {record.RangeSelPrim.Value(), record.RangeSelSec.Value()};
  chkTwoGuns = record.TwoGuns != 0;
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
  const auto chosen = static_cast<std::size_t>(sight);
  const bool checked = !(this->*kSights[chosen].control)[w];
  if (checked) {
    for (const CheckPair& other : kSights) (this->*other.control)[w] = false;
  }
  (this->*kSights[chosen].control)[w] = checked;
}

void WeaponPanel::Sync(PlayerRecord& record) const {
  for (const std::size_t w : kBoth) {
    for (const TextPair& box : kBoxes) record.*box.fields[w] = (this->*box.control)[w];
    for (const CheckPair& sight : kSights) {
      record.*sight.fields[w] = (this->*sight.control)[w] ? 1 : 0;
    }
  }
  record.TwoGuns = chkTwoGuns ? 1 : 0;
}

}  // namespace ng
