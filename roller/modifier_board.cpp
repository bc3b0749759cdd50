#include "roller/modifier_board.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"

namespace ng {
namespace {

using Steps = std::span<const char* const>;

constexpr std::array<const char*, 2> kPlusFour = {"0", "+4"};
constexpr std::array<const char*, 2> kMinusOne = {"0", "-1"};
constexpr std::array<const char*, 2> kMinusTwo = {"0", "-2"};
constexpr std::array<const char*, 3> kCover = {"0", "+4", "+8"};
constexpr std::array<const char*, 3> kTargetMoves = {"0", "+2", "-1"};
constexpr std::array<const char*, 5> kByTwoToEight = {"0", "+2", "+4", "+6", "+8"};
// The fourth step is written without a sign; it counts all the same.
constexpr std::array<const char*, 5> kUpToFour = {"0", "+1", "+2", "+3", "4"};
constexpr std::array<const char*, 5> kDownToFour = {"0", "-1", "-2", "-3", "-4"};
constexpr std::array<const char*, 7> kUpToSix = {"0", "+1", "+2", "+3", "+4", "+5", "+6"};

// The texts are the game's own, odd spellings and double blanks included.
constexpr std::array<Caption, 20> kCaptions = {{
    {"lblWeaponMod",
     "Weapon: recoil, sights, wounds",
     kWeaponBox,
     TestPage::Ranged,
     Stepping::WeaponModifier,
     {}},
    {"Label7", "Cover Blind +8/ Partial +4", 1, TestPage::Ranged, Stepping::Wraps, kCover},
    {"lblTarRun", "Target +2 Running/-1 Stationary", 4, TestPage::Ranged, Stepping::Wraps,
     kTargetMoves},
    {"Label5", "Attacker in Melee +2/Opponet", 5, TestPage::Ranged, Stepping::Wraps, kByTwoToEight},
    {"Label6", "+2 Multiple Targets", 3, TestPage::Ranged, Stepping::Wraps, kByTwoToEight},
    {"Label4", "Aimed Shots mod -1/simple action", 10, TestPage::Ranged, Stepping::Wraps,
     kDownToFour},
    {"Label3", "Called Shot", 11, TestPage::Ranged, Stepping::Wraps, kPlusFour},

    {"lblMeleeWounds", "Wounds", kMeleeWoundsBox, TestPage::Melee, Stepping::WoundModifier, {}},
    {"Label8", "Called Shot +4", 14, TestPage::Melee, Stepping::Wraps, kPlusFour},
    {"Label9", "Character has friends in melee -1", 15, TestPage::Melee, Stepping::StopsAtLast,
     kDownToFour, 16},
    {"Label10", "Opponent has friends in melee +1", 16, TestPage::Melee, Stepping::StopsAtLast,
     kUpToFour, 15},
    {"Label11", "Char.'s weapon has longer reach  -1", 19, TestPage::Melee, Stepping::StopsAtLast,
     kDownToFour, 20},
    {"Label15", "Char.'s weapon has inferior reach +1", 20, TestPage::Melee, Stepping::StopsAtLast,
     kUpToFour, 19},
    {"Label18", "Character has superior position -1", 22, TestPage::Melee, Stepping::Wraps,
     kMinusOne},
    {"Label19", "Opponent prone -2", 23, TestPage::Melee, Stepping::Wraps, kMinusTwo},
    {"Label16", "Character attacking multiple targets +2", 24, TestPage::Melee, Stepping::Wraps,
     kByTwoToEight},

    {"lblBodyWounds", "Wounds", kBodyWoundsBox, TestPage::BodyDodge, Stepping::WoundModifier, {}},
    {"lblBurstMod", "+1 per 3 round Burst", kBurstBox, TestPage::BodyDodge, Stepping::Wraps,
     kUpToSix},
    {"lblShotgunMod", "+1 per meter shotgun spread", 26, TestPage::BodyDodge, Stepping::Wraps,
     kUpToSix},

    {"lblGeneralWounds",
     "Wounds",
     kGeneralWoundsBox,
     TestPage::General,
     Stepping::WoundModifier,
     {}},
}};

constexpr std::array<int, 11> kRangedBoxes = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
constexpr std::array<int, 10> kMeleeBoxes = {14, 15, 16, 17, 18, 19, 20, 22, 23, 24};
constexpr std::array<int, 3> kBodyDodgeBoxes = {12, 25, 26};
constexpr std::array<int, 1> kGeneralBoxes = {21};

constexpr std::array<AttackerMove, 5> kAttackerMoves = {{
    {"Attacker Stationary", "0"},
    {"Attacker Running (Diff. Ground)", "+6"},
    {"Attacker Running", "+4"},
    {"Attacker Walking (Diff. Ground)", "+2"},
    {"Attacker Walking", "+1"},
}};

/// Finds `text` among the steps by its value, since the game master may type "4" for "+4". The end
/// when it is none of them.
Steps::iterator FindStep(Steps steps, const std::string& text) {
  return std::find_if(steps.begin(), steps.end(), [&text](const char* step) {
    return LeadingNumber(step) == LeadingNumber(text);
  });
}

/// One further than the text says, whatever was typed there, but not past the last step.
std::string Counted(Steps steps, const std::string& text) {
  const double last = LeadingNumber(steps.back());
  const double next = LeadingNumber(text) + (last > 0 ? 1 : -1);
  if (last > 0 ? next >= last : next <= last) return steps.back();
  const auto step = FindStep(steps, PlainText(next));
  return step != steps.end() ? *step : PlainText(next);
}

std::string NextStep(Steps steps, Stepping stepping, const std::string& text) {
  if (stepping == Stepping::StopsAtLast) return Counted(steps, text);
  const auto step = FindStep(steps, text);
  if (step == steps.end()) return steps.front();
  return step + 1 != steps.end() ? step[1] : steps.front();
}

}  // namespace

std::span<const Caption> Captions() { return kCaptions; }

const Caption* FindCaption(std::string_view control) {
  const auto* const caption =
      std::find_if(kCaptions.begin(), kCaptions.end(),
                   [control](const Caption& entry) { return entry.control == control; });
  return caption == kCaptions.end() ? nullptr : caption;
}

std::span<const int> BoxesOf(TestPage page) {
  switch (page) {
    case TestPage::Ranged:
      return kRangedBoxes;
    case TestPage::Melee:
      return kMeleeBoxes;
    case TestPage::BodyDodge:
      return kBodyDodgeBoxes;
    case TestPage::General:
      break;
  }
  return kGeneralBoxes;
}

std::span<const AttackerMove> AttackerMoves() { return kAttackerMoves; }

std::string ModifierText(Integer modifier) { return modifier == 0 ? "0" : SignedText(modifier); }

ModifierBoard::ModifierBoard() {
  for (std::string& box : txtRVar) box = "0";
}

void ModifierBoard::Step(const Caption& caption, const CombatantModifiers& combatant) {
  const bool weapon = caption.stepping == Stepping::WeaponModifier;
  const std::string own = ModifierText(weapon ? combatant.weapon : combatant.wounds);
  const std::array<const char*, 2> ownSteps = {"0", own.c_str()};
  std::string& box = txtRVar[caption.box];
  box = NextStep(caption.steps.empty() ? Steps(ownSteps) : caption.steps, caption.stepping, box);
  if (caption.opposite != 0) Clear(caption.opposite);
}

void ModifierBoard::Fill(const CombatantModifiers& combatant) {
  txtRVar[kWeaponBox] = ModifierText(combatant.weapon);
  txtRVar[kMeleeWoundsBox] = ModifierText(combatant.wounds);
  txtRVar[kGeneralWoundsBox] = ModifierText(combatant.wounds);
}

double ModifierBoard::Sum(TestPage page) const {
  double sum = 0;
  for (const int box : BoxesOf(page)) sum += LeadingNumber(txtRVar[box]);
  return sum;
}

}  // namespace ng
