#include "combat/recoil.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include "base/number_text.h"
#include "base/text.h"

namespace ng {
namespace {

/// The magazine's capacity: the digits of its text, in order.
Integer Capacity(std::string_view magazine) {
  std::string digits;
  std::copy_if(magazine.begin(), magazine.end(), std::back_inserter(digits),
               [](char c) { return c >= '0' && c <= '9'; });
  return LenientInteger(digits);
}

Integer SightModifier(const PlayerRecord& record, const HandFields& hand) {
  Integer modifier;
  if (record.*hand.smartlink != 0) modifier -= 2;
  if (record.*hand.laserSight != 0) modifier -= 1;
  if (record.*hand.smartGoggles != 0) modifier -= 1;
  return modifier;
}

void ApplyTwoGuns(PerWeapon<WeaponModifier>& modifiers, Integer ambidexterity) {
  for (WeaponModifier& modifier : modifiers) modifier.total += 2;
  switch (ambidexterity.Value()) {
    case 1:
      // At the lowest level the off hand sets the pace: the primary takes its value less one, and
      // the secondary keeps its own.
      modifiers[0].total = modifiers[1].total - 1;
      break;
    case 2:
      modifiers[0].total -= 1;
      modifiers[1].total -= 1;
      break;
    case 3:
      modifiers[0].total -= 2;
      modifiers[1].total -= 1;
      break;
    case 4:
      modifiers[0].total -= 2;
      modifiers[1].total -= 2;
      break;
    default:
      break;
  }
}

}  // namespace

bool IsHeavyWeapon(std::string_view caption) {
  constexpr std::array<const char*, 6> kHeavy = {"(ShtG)", "(MMG)",  "(LMG)",
                                                 "(HMG)",  "(ACan)", "(MinG)"};
  return std::any_of(kHeavy.begin(), kHeavy.end(),
                     [caption](const char* code) { return Contains(caption, code); });
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

Integer AmmoLeft(const PlayerRecord& record, Weapon weapon) {
  const HandFields& hand = FieldsOf(weapon);
  const std::string& magazine = record.*hand.ammunition;
  if (magazine.empty()) return 0;
  return ToInteger(Capacity(magazine).Value() - LeadingNumber(record.*hand.shots));
}

Integer RecoilRounds(Integer rounds, Boolean burst) {
  if (rounds == 0 || rounds == 1) return 0;
  if ((rounds == 2 || rounds == 3) && !burst) return rounds - 1;
  return rounds;
}

Integer UncompensatedRecoil(const PlayerRecord& record, Weapon weapon, Boolean burst) {
  const HandFields& hand = FieldsOf(weapon);
  const Integer rounds = RecoilRounds(LenientInteger(record.*hand.roundsThisTurn), burst);
  const Integer recoil = ToInteger(rounds.Value() - LeadingNumber(record.*hand.recoilCompensation) -
                                   LeadingNumber(record.*hand.gyro));
  if (recoil < 0) return 0;
  return IsHeavyWeapon(record.*hand.caption) ? recoil * 2 : recoil;
}

PerWeapon<WeaponModifier> WeaponModifiers(const PlayerRecord& record, Integer ambidexterity,
                                          Boolean burst) {
  PerWeapon<WeaponModifier> modifiers;
  for (const Weapon weapon : {Weapon::Primary, Weapon::Secondary}) {
    const Integer recoil = UncompensatedRecoil(record, weapon, burst);
    modifiers[static_cast<std::size_t>(weapon)] = {
        recoil, recoil + SightModifier(record, FieldsOf(weapon))};
  }
  if (record.TwoGuns != 0) ApplyTwoGuns(modifiers, ambidexterity);
  for (WeaponModifier& modifier : modifiers) modifier.total += record.TNDamMod;
  return modifiers;
}

void CountRounds(PlayerRecord& record, Weapon weapon, Integer rounds) {
  const HandFields& hand = FieldsOf(weapon);
  // The turn's count goes on from whatever its box shows.
  const Integer turn = LenientInteger(record.*hand.roundsThisTurn) + rounds;
  record.*hand.roundsThisTurn = PlainText(turn);
  if (rounds > 0) {
    record.*hand.shots = PlainText(LeadingNumber(record.*hand.shots) + rounds.Value());
  }
}

}  // namespace ng
