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

/// The figures of the weapons in hand.
constexpr std::array<TextPair, 3> kFigures = {{
    {&WeaponPanel::lblDamage,
     {&PlayerRecord::PrimWeapStatDamage, &PlayerRecord::SecWeapStatDamage}},
    {&WeaponPanel::lblConceal,
     {&PlayerRecord::PrimWeapStatCclrch, &PlayerRecord::SecWeapStatCclrch}},
    {&WeaponPanel::lblAmmo, {&PlayerRecord::PrimWeapStatAmmo, &PlayerRecord::SecWeapStatAmmo}},
}};

constexpr std::array<CheckPair, 3> kSights = {{
    {&WeaponPanel::chkSmL, {&PlayerRecord::SmLPrim, &PlayerRecord::SmLSec}},
    {&WeaponPanel::chkLaserSight, {&PlayerRecord::LaserPrim, &PlayerRecord::LaserSec}},
    {&WeaponPanel::chkSmtGoggles, {&PlayerRecord::SmtGogPrim, &PlayerRecord::SmtGogSec}},
}};

constexpr PerWeapon<std::size_t> kBoth = {0, 1};

}  // namespace

void WeaponPanel::Show(const PlayerRecord& record) {
  lblPrimary = record.PrimHand;
  lblSecondary = record.SecHand;
  lblPRng = {record.PrimWeapStatRng1, record.PrimWeapStatRng2, record.PrimWeapStatRng3,
             record.PrimWeapStatRng4};
  lblSRng = {record.SecWeapStatRng1, record.SecWeapStatRng2, record.SecWeapStatRng3,
             record.SecWeapStatRng4};
  optRangeSel = {record.RangeSelPrim.Value(), record.RangeSelSec.Value()};
  for (const std::size_t w : kBoth) {
    for (const TextPair& box : kBoxes) (this->*box.control)[w] = record.*box.fields[w];
    for (const TextPair& figure : kFigures) (this->*figure.control)[w] = record.*figure.fields[w];
    for (const CheckPair& sight : kSights) {
      (this->*sight.control)[w] = record.*sight.fields[w] != 0;
    }
  }
  chkTwoGuns = record.TwoGuns != 0;
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
