#include "import/armour.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"

namespace ng {
namespace {

constexpr int kArmourBallistic = 2;
constexpr int kArmourImpact = 3;
constexpr int kArmourWeight = 4;
constexpr int kWeaponWeight = 5;
constexpr int kGearWeight = 1;

std::string_view Column(const CarriedLine& line, int column) {
  return Piece(line.text, '\t', column);
}

double CarriedWeight(const std::vector<CarriedLine>& lines, int weightColumn) {
  double weight = 0;
  for (const CarriedLine& line : lines) {
    if (line.carried) weight += LeadingNumber(Column(line, weightColumn));
  }
  return weight;
}

const CarriedLine* MainArmour(const std::vector<CarriedLine>& lines) {
  const CarriedLine* main = nullptr;
  double best = 0;
  for (const CarriedLine& line : lines) {
    if (!line.carried || IsBoneLace(line)) continue;
    const double ballistic = LeadingNumber(Column(line, kArmourBallistic));
    if (main == nullptr || ballistic > best) {
      main = &line;
      best = ballistic;
    }
  }
  return main;
}

}  // namespace

LoadWeights WeightsOf(const CharacterEntry& entry) {
  return {CarriedWeight(entry.armour, kArmourWeight), CarriedWeight(entry.weapons, kWeaponWeight),
          CarriedWeight(entry.gear, kGearWeight)};
}

bool IsBoneLace(const CarriedLine& line) { return Contains(line.text, "Bone Lace"); }

ArmourFigures DeriveArmour(const CharacterEntry& entry) {
  ArmourFigures figures;
  const CarriedLine* main = MainArmour(entry.armour);
  Integer plainBallistic;
  for (const CarriedLine& line : entry.armour) {
    if (!line.carried) continue;
    const double ballistic = LeadingNumber(Column(line, kArmourBallistic));
    const double impact = LeadingNumber(Column(line, kArmourImpact));
    // Halves go to the even number, as the rule for layered armour rounds.
    const double share = &line == main || IsBoneLace(line) ? 1 : 0.5;
    figures.ballistic += ToInteger(ballistic * share);
    figures.impact += ToInteger(impact * share);
    plainBallistic += ToInteger(ballistic);
  }
  const Integer quickness =
      LenientInteger(AugmentedValue(entry.AttributeText(Attribute::Quickness)));
  const Integer excess = std::max(figures.ballistic, figures.impact) - quickness;
  figures.combatPoolModifier = AtLeast(excess, 0).Value() / 2;
  figures.quicknessModifier = AtLeast(plainBallistic - quickness, 0);
  const LoadWeights weights = WeightsOf(entry);
  figures.weight = weights.armour + weights.weapons + weights.gear;
  return figures;
}

ArmourFigures ArmourOf(const PlayerRecord& record) {
  return {record.ArmorBAL, record.ArmorIMP, record.ArmorCPmod, record.ArmorQCKmod,
          LeadingNumber(record.LastWeight)};
}

void StoreArmour(PlayerRecord& record, const ArmourFigures& figures) {
  record.ArmorBAL = figures.ballistic;
  record.ArmorIMP = figures.impact;
  record.ArmorCPmod = figures.combatPoolModifier;
  record.ArmorQCKmod = figures.quicknessModifier;
  record.LastWeight = PlainText(figures.weight);
}

}  // namespace ng
