#include "combat/firing.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "base/number_text.h"
#include "base/text.h"

namespace ng {
namespace {

std::size_t IndexOf(Weapon weapon) { return static_cast<std::size_t>(weapon); }

/// The magazine's capacity: the digits of its text, in order.
Integer Capacity(std::string_view magazine) {
  std::string digits;
  std::copy_if(magazine.begin(), magazine.end(), std::back_inserter(digits),
               [](char c) { return c >= '0' && c <= '9'; });
  return LenientInteger(digits);
}

}  // namespace

bool IsHeavyWeapon(std::string_view caption) {
  constexpr std::array<const char*, 6> kHeavy = {"(ShtG)", "(MMG)",  "(LMG)",
                                                 "(HMG)",  "(ACan)", "(MinG)"};
  return std::any_of(kHeavy.begin(), kHeavy.end(),
                     [caption](const char* code) { return Contains(caption, code); });
}

std::string_view ClassCode(std::string_view caption) {
  const std::size_t open = caption.rfind('(');
  if (open == std::string_view::npos) return {};
  const std::string_view inner = caption.substr(open + 1);
  const std::size_t close = inner.find(')');
  return close == std::string_view::npos ? std::string_view{} : inner.substr(0, close);
}

Integer CheckPCAmbidexterity(const CharacterEntry* entry) {
  if (entry == nullptr) return 0;
  for (const std::string& edge : entry->edges) {
    if (!Contains(edge, "Ambidexterity")) continue;
    Integer level;
    int step = 0;
    for (const char* name :
         {"Ambidexterity-2", "Ambidexterity-4", "Ambidexterity-6", "Ambidexterity-8"}) {
      ++step;
      if (Contains(edge, name)) level = step;
    }
    return level;
  }
  return 0;
}

bool Firing::MayFire(Weapon weapon) {
  if (!HasTurn()) {
    prompts_.Message("Can only shoot on PC's turn!");
    return false;
  }
  if (AmmoLeft(weapon) <= 0) {
    prompts_.Message("Weapon empty");
    return false;
  }
  return true;
}

void Firing::Fire(Weapon weapon, Integer shots) {
  if (!MayFire(weapon)) return;
  const std::size_t w = IndexOf(weapon);
  // The magazine cuts a burst short without a word; the burst itself goes by what was asked for.
  const Integer rounds = std::min(shots, AmmoLeft(weapon));
  burstFire_ = shots >= 2;
  roundsFired_[w] += rounds;
  panel_.txtTBTT[w] = PlainText(roundsFired_[w]);
  PlayerRecord& record = Displayed();
  record.FiredThisTurn = rounds > 0;
  if (rounds > 0) {
    panel_.txtShots[w] = PlainText(LeadingNumber(panel_.txtShots[w]) + rounds.Value());
  }
  record.SkillWeapType = weapon == Weapon::Primary ? 1 : 2;
  UpdateWeaponModifiers();
  panel_.Sync(record);
  HandOverToRoller(weapon, rounds);
}

void Firing::HandOverToRoller(Weapon weapon, Integer rounds) {
  const PlayerRecord& record = Displayed();
  const bool primary = weapon == Weapon::Primary;
  roller_.BulletCount = rounds;
  roller_.DamageCode = panel_.lblDamage[IndexOf(weapon)];
  roller_.lblSkill = primary ? record.SkillPrimaryName : record.SkillSecondaryName;
  roller_.skill = PlainText(primary ? record.SkillPrimaryValue : record.SkillSecondaryValue);
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

Integer Firing::AmmoLeft(Weapon weapon) const {
  const std::size_t w = IndexOf(weapon);
  if (panel_.lblAmmo[w].empty()) return 0;
  return ToInteger(Capacity(panel_.lblAmmo[w]).Value() - LeadingNumber(panel_.txtShots[w]));
}

Integer Firing::RecoilRounds(Integer rounds) const {
  if (rounds == 0 || rounds == 1) return 0;
  if ((rounds == 2 || rounds == 3) && !burstFire_) return rounds - 1;
  return rounds;
}

Integer Firing::UncompensatedRecoil(std::size_t w) const {
  const Integer rounds = RecoilRounds(LenientInteger(panel_.txtTBTT[w]));
  const Integer recoil =
      ToInteger(rounds.Value() - LeadingNumber(panel_.txtRC[w]) - LeadingNumber(panel_.txtGyro[w]));
  if (recoil < 0) return 0;
  return IsHeavyWeapon(w == 0 ? panel_.lblPrimary : panel_.lblSecondary) ? recoil * 2 : recoil;
}

Integer Firing::SightModifier(std::size_t w) const {
  Integer modifier;
  if (panel_.chkSmL[w]) modifier -= 2;
  if (panel_.chkLaserSight[w]) modifier -= 1;
  if (panel_.chkSmtGoggles[w]) modifier -= 1;
  return modifier;
}

void Firing::ApplyTwoGuns(PerWeapon<Integer>& modifiers) const {
  for (Integer& modifier : modifiers) modifier += 2;
  const PlayerRecord& record = fight_.Players[fight_.CurrentPCpointer];
  switch (CheckPCAmbidexterity(characters_.Of(record)).Value()) {
    case 1:
      // Unequal on purpose: the primary takes the secondary's value less one.
      modifiers[0] = modifiers[1] - 1;
      break;
    case 2:
      modifiers[0] -= 1;
      modifiers[1] -= 1;
      break;
    case 3:
      modifiers[0] -= 2;
      modifiers[1] -= 1;
      break;
    case 4:
      modifiers[0] -= 2;
      modifiers[1] -= 2;
      break;
    default:
      break;
  }
}

void Firing::UpdateWeaponModifiers() {
  PerWeapon<Integer> modifiers;
  for (std::size_t w = 0; w < modifiers.size(); ++w) {
    const Integer recoil = UncompensatedRecoil(w);
    panel_.txtURC[w] = PlainText(recoil);
    modifiers[w] = recoil + SightModifier(w);
  }
  if (panel_.chkTwoGuns) ApplyTwoGuns(modifiers);
  const PlayerRecord& record = fight_.Players[fight_.CurrentPCpointer];
  for (Integer& modifier : modifiers) modifier += record.TNDamMod;
  roller_.URCprimary(modifiers[0]);
  roller_.URCsecondary(modifiers[1]);
  panel_.lblWPrim = SignedText(modifiers[0]);
  panel_.lblWSec = SignedText(modifiers[1]);
  panel_.lblTNMod = "Mod:" + panel_.lblWPrim;
  if (!panel_.lblSecondary.empty()) panel_.lblTNMod += "/" + panel_.lblWSec;
}

void Firing::TakeRoundCounters() {
  for (std::size_t w = 0; w < roundsFired_.size(); ++w) {
    roundsFired_[w] = LenientInteger(panel_.txtTBTT[w]);
  }
}

}  // namespace ng
