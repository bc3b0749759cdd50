#include "combat/firing.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"

namespace ng {
namespace {

std::size_t IndexOf(Weapon weapon) { return static_cast<std::size_t>(weapon); }

}  // namespace

std::string_view ClassCode(std::string_view caption) {
  const std::size_t open = caption.rfind('(');
  if (open == std::string_view::npos) return {};
  const std::string_view inner = caption.substr(open + 1);
  const std::size_t close = inner.find(')');
  return close == std::string_view::npos ? std::string_view{} : inner.substr(0, close);
}

bool Firing::MayFire(Weapon weapon) {
  if (!HasTurn()) {
    prompts_.Message("Can only shoot on PC's turn!");
    return false;
  }
  if (AmmoLeft(Displayed(), weapon) <= 0) {
    prompts_.Message("Weapon empty");
    return false;
  }
  return true;
}

void Firing::Fire(Weapon weapon, Integer shots) {
  if (!MayFire(weapon)) return;
  PlayerRecord& record = Displayed();
  // The next shot adds to the rounds that the box shows. It may show more than the record holds:
  // the end of a turn clears the counts and displays nobody.
  panel_.Sync(record);
  // The magazine cuts a burst short without a word; the burst itself goes by what was asked for.
  const Integer rounds = std::min(shots, AmmoLeft(record, weapon));
  burstFire_ = shots >= 2;
  CountRounds(record, weapon, rounds);
  record.FiredThisTurn = rounds > 0;
  record.SkillWeapType = weapon == Weapon::Primary ? 1 : 2;
  panel_.Show(record);
  UpdateWeaponModifiers();
  panel_.Sync(record);
  HandOverToRoller(weapon, rounds);
}

void Firing::HandOverToRoller(Weapon weapon, Integer rounds) {
  const PlayerRecord& record = Displayed();
  const HandFields& hand = FieldsOf(weapon);
  roller_.BulletCount = rounds;
  roller_.DamageCode = record.*hand.damage;
  roller_.lblSkill = record.*hand.skillName;
  roller_.skill = PlainText(record.*hand.skillValue);
  roller_.tabTest_Click(TestPage::Ranged);
  if (!settings_.DisableNGDR) roller_.visible = true;
}

void Firing::FullAuto(Weapon weapon) {
  if (!MayFire(weapon)) return;
  const double asked = LeadingNumber(prompts_.Input(" Enter Full Auto Number of shots (1-18)"));
  if (!(asked > 0 && asked < kMostFullAuto + 1)) {
    prompts_.Message("Number of shots must be between 1 and 18");
    return;
  }
  Fire(weapon, ToInteger(asked));
}

void Firing::Reload(Weapon weapon) {
  if (fight_.CurrentPCpointer == 0) return;
  std::string& shots = panel_.txtShots[IndexOf(weapon)];
  log_.Add(Displayed().Name);
  log_.Add("Reload:" + (weapon == Weapon::Primary ? panel_.lblPrimary : panel_.lblSecondary) +
           "Shots fired:" + PlainText(LeadingNumber(shots)));
  shots = "0";
  panel_.Sync(Displayed());
}

void Firing::Disarm(Weapon weapon) {
  if (fight_.CurrentPCpointer == 0) return;
  SetWeapon(Displayed(), weapon, {});
  panel_.ShowWeapon(Displayed(), weapon);
  UpdateWeaponModifiers();
  panel_.Sync(Displayed());
}

void Firing::Ready(Weapon weapon, std::string_view line, const RangeTable& ranges) {
  if (fight_.CurrentPCpointer == 0) return;
  const std::string text = CleanItemText(line);
  WeaponFigures figures;
  figures.caption = Piece(text, '\t', 0);
  figures.damage = Piece(text, '\t', 1);
  figures.concealability = Piece(text, '\t', 2);
  figures.ammunition = Piece(text, '\t', 4);
  if (const RangeEntry* entry = FindRange(ranges, ClassCode(figures.caption))) {
    for (std::size_t i = 0; i < kRanges; ++i) figures.ranges[i] = PlainText(entry->limits[i]);
  }
  SetWeapon(Displayed(), weapon, figures);
  panel_.ShowWeapon(Displayed(), weapon);
  panel_.txtShots[IndexOf(weapon)] = "0";
  UpdateWeaponModifiers();
  panel_.Sync(Displayed());
}

PerWeapon<WeaponModifier> Firing::ModifiersOf(const PlayerRecord& record) const {
  return WeaponModifiers(record, CheckPCAmbidexterity(characters_.Of(record)), burstFire_);
}

PerWeapon<Integer> Firing::TotalsOf(const PlayerRecord& record) const {
  const PerWeapon<WeaponModifier> modifiers = ModifiersOf(record);
  return {modifiers[0].total, modifiers[1].total};
}

void Firing::UpdateWeaponModifiers() {
  if (fight_.CurrentPCpointer != 0) panel_.Sync(Displayed());
  const PerWeapon<WeaponModifier> modifiers = ModifiersOf(Displayed());
  for (std::size_t w = 0; w < modifiers.size(); ++w) {
    panel_.txtURC[w] = PlainText(modifiers[w].recoil);
  }
  roller_.URCprimary(modifiers[0].total);
  roller_.URCsecondary(modifiers[1].total);
  panel_.lblWPrim = SignedText(modifiers[0].total);
  panel_.lblWSec = SignedText(modifiers[1].total);
  panel_.lblTNMod = "Mod:" + panel_.lblWPrim;
  if (!panel_.lblSecondary.empty()) panel_.lblTNMod += "/" + panel_.lblWSec;
}

}  // namespace ng
