#include "roller/skill_level.h"

#include <string_view>

#include "base/number_text.h"

namespace ng {
namespace {

/// The text between the first "[" and the first "]". A "]" that is missing or comes first makes
/// the length negative, an overflow like any other.
std::string_view BetweenBrackets(std::string_view line, std::size_t bracket) {
  const std::size_t end = line.find(']');
  if (end == std::string_view::npos || end < bracket) ThrowOverflow();
  return line.substr(bracket + 1, end - bracket - 1);
}

}  // namespace

void SkillLevelForm::SkillString(const std::string& line) {
  valid_ = true;
  open = false;
  lblSkill = line;
  const std::size_t bracket = line.find('[');
  if (bracket == std::string::npos) {
    SelValue = 0;
    valid_ = false;
    return;
  }
  const std::string_view levels = BetweenBrackets(line, bracket);
  const std::size_t slash = levels.find('/');
  if (slash == std::string_view::npos) {
    SelValue = LenientInteger(levels);
    baseLevel_ = SelValue;
    valid_ = false;
    return;
  }
  baseLevel_ = LenientInteger(levels.substr(0, slash));
  cmdSkillSelect[kBase] = "Base : " + PlainText(baseLevel_);
  specialisationLevel_ = LenientInteger(levels.substr(slash + 1));
  cmdSkillSelect[kSpecialisation] = "Spec : " + PlainText(specialisationLevel_);
  open = true;
}

void SkillLevelForm::cmdSkillSelect_Click(int index) {
  valid_ = true;
  SelValue = index != kBase ? specialisationLevel_ : baseLevel_;
  open = false;
}

}  // namespace ng
