#include "journal/field_words.h"

#include <map>
#include <string_view>

namespace ng {
namespace {

/// Empty words are for fields that the rules keep for themselves.
const std::map<std::string_view, std::string_view>& FieldWords() {
  static const std::map<std::string_view, std::string_view> words = {
      {"Name", "name"},
      {"Filename", ""},
      {"Delay", "delayed"},
      {"inactive", "inactive"},
      {"SetGreen", ""},
      {"Events", ""},
      {"roundcnt", ""},
      {"CurInitMode", "initiative mode"},
      {"CurInitNatural", "natural dice"},
      {"CurInitAugmented", "augmented dice"},
      {"CurReactNatural", "natural reaction"},
      {"CurReactAugmented", "augmented reaction"},
      {"CurDamPhysical", "physical"},
      {"CurDamOver", ""},
      {"CurDamStun", "stun"},
      {"CondCode", ""},
      {"TNDamMod", "wound modifier"},
      {"PrimHand", "primary weapon"},
      {"PrimAmmo", "primary rounds fired"},
      {"SecHand", "secondary weapon"},
      {"SecAmmo", "secondary rounds fired"},
      {"PrimWeapStatDamage", ""},
      {"PrimWeapStatCclrch", ""},
      {"PrimWeapStatRng1", ""},
      {"PrimWeapStatRng2", ""},
      {"PrimWeapStatRng3", ""},
      {"PrimWeapStatRng4", ""},
      {"PrimWeapStatAmmo", ""},
      {"SecWeapStatDamage", ""},
      {"SecWeapStatCclrch", ""},
      {"SecWeapStatRng1", ""},
      {"SecWeapStatRng2", ""},
      {"SecWeapStatRng3", ""},
      {"SecWeapStatRng4", ""},
      {"SecWeapStatAmmo", ""},
      {"RRSLT", "roll"},
      {"FRSLT", "net"},
      {"Random", ""},
      {"PhaseNum", ""},
      {"lastTab", ""},
      {"Skill", ""},
      {"LastWeight", "weight"},
      {"CharacterData", ""},
      {"TurnDone", ""},
      {"Race", "race"},
      {"TBTTPrim", "primary rounds this turn"},
      {"RCPrim", "primary recoil compensation"},
      {"GyroPrim", "primary gyro"},
      {"URCPrim", ""},
      {"SmLPrim", "primary smartlink"},
      {"LaserPrim", "primary laser sight"},
      {"SmtGogPrim", "primary smart goggles"},
      {"TBTTSec", "secondary rounds this turn"},
      {"RCSec", "secondary recoil compensation"},
      {"GyroSec", "secondary gyro"},
      {"URCSec", ""},
      {"SmLSec", "secondary smartlink"},
      {"LaserSec", "secondary laser sight"},
      {"SmtGogSec", "secondary smart goggles"},
      {"TwoGuns", "two guns"},
      {"PainResistance", "pain resistance"},
      {"ArmorCPmod", "armour off combat pool"},
      {"ArmorQCKmod", "armour off quickness"},
      {"ArmorBAL", "ballistic armour"},
      {"ArmorIMP", "impact armour"},
      {"SkillPrimaryName", "primary skill"},
      {"SkillPrimaryValue", "primary skill level"},
      {"SkillSecondaryName", "secondary skill"},
      {"SkillSecondaryValue", "secondary skill level"},
      {"SkillUnarmedName", "unarmed skill"},
      {"SkillUnarmedValue", "unarmed skill level"},
      {"SkillLastName", ""},
      {"SkillLastValue", ""},
      {"SkillWeapType", ""},
      {"NoteFileName", "note file"},
      {"Notes", "note"},
      {"CP", "combat pool"},
      {"SP", "spell pool"},
      {"SD", "dice set aside"},
      {"AS", "astral pool"},
      {"KP", "karma pool"},
      {"Resumed", ""},
      {"RangeSelPrim", "primary range"},
      {"RangeSelSec", "secondary range"},
      {"FiredThisTurn", ""}};
  return words;
}

std::string_view WordsOf(const char* field) {
  const auto found = FieldWords().find(field);
  return found == FieldWords().end() ? std::string_view(field) : found->second;
}

/// A value that is short enough for a line.
std::string Shown(const std::string& value) {
  constexpr std::size_t kLongest = 30;
  std::string shown = value.empty() ? "none" : value;
  for (char& c : shown) c = c == '\t' || c == '\r' || c == '\n' ? ' ' : c;
  return shown.size() > kLongest ? shown.substr(0, kLongest) + "..." : shown;
}

/// "delayed", "no longer delayed"; "physical 0 to 3".
std::string Change(const PlayerField& field, const PlayerRecord& before,
                   const PlayerRecord& after) {
  const std::string words(WordsOf(field.name));
  if (const auto* flag = std::get_if<Boolean PlayerRecord::*>(&field.member)) {
    return (after.**flag ? "" : "no longer ") + words;
  }
  return words + " " + Shown(FieldText(before, field)) + " to " + Shown(FieldText(after, field));
}

void AppendWith(std::string& text, const char* separator, const std::string& more) {
  if (more.empty()) return;
  if (!text.empty()) text += separator;
  text += more;
}

}  // namespace

std::string ChangesOf(const PlayerRecord& before, const PlayerRecord& after) {
  std::string changes;
  for (const PlayerField& field : PlayerFields()) {
    const bool same =
        std::visit([&](auto member) { return before.*member == after.*member; }, field.member);
    if (!same && !WordsOf(field.name).empty())
      AppendWith(changes, ", ", Change(field, before, after));
  }
  return changes;
}

std::string ChangesOf(const Fight& before, const Fight& after, const std::string& who) {
  std::string changes;
  for (const Slot slot : AllSlots()) {
    const PlayerRecord& old = before.Players[slot];
    const PlayerRecord& now = after.Players[slot];
    if (old == now) continue;
    if (old.Name.empty()) {
      AppendWith(changes, "; ", now.Name + " comes in");
    } else if (now.Name.empty()) {
      AppendWith(changes, "; ", old.Name + " is removed");
    } else {
      const std::string own = ChangesOf(old, now);
      if (!own.empty()) AppendWith(changes, "; ", now.Name == who ? own : now.Name + ": " + own);
    }
  }
  return changes;
}

}  // namespace ng
