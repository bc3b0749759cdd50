#include "tracker/state_fields.h"

#include <algorithm>
#include <cmath>

#include "app/settings/encoding.h"
#include "base/number_text.h"
#include "base/text.h"

namespace ng {

#define NG_KEY(name, form) \
  { #name, SlotForm::form, &PlayerRecord::name, &PlayerRecord::name }

const std::vector<SlotKey>& SlotKeys() {
  static const std::vector<SlotKey> keys = {
      NG_KEY(Name, Name),
      NG_KEY(Filename, Plain),
      // The three flags go into one field, the last one stays: after a load whoever had the turn
      // stands as delayed, and the others keep what their import gave them.
      NG_KEY(Delay, Flag),
      {"inactive", SlotForm::Flag, &PlayerRecord::inactive, &PlayerRecord::Delay},
      {"SetGreen", SlotForm::Flag, &PlayerRecord::SetGreen, &PlayerRecord::Delay},
      NG_KEY(roundcnt, Emptied),
      NG_KEY(CurInitMode, Number),
      NG_KEY(CurInitNatural, Number),
      NG_KEY(CurInitAugmented, Number),
      NG_KEY(CurReactNatural, Number),
      NG_KEY(CurReactAugmented, Number),
      NG_KEY(CurDamPhysical, Number),
      NG_KEY(CurDamStun, Number),
      NG_KEY(CurDamOver, Number),
      NG_KEY(TNDamMod, Number),
      NG_KEY(PrimHand, Encoded),
      NG_KEY(PrimAmmo, Encoded),
      NG_KEY(SecHand, Encoded),
      NG_KEY(SecAmmo, Encoded),
      NG_KEY(PrimWeapStatDamage, Plain),
      NG_KEY(PrimWeapStatCclrch, Plain),
      NG_KEY(PrimWeapStatRng1, Plain),
      NG_KEY(PrimWeapStatRng2, Plain),
      NG_KEY(PrimWeapStatRng3, Plain),
      NG_KEY(PrimWeapStatRng4, Plain),
      NG_KEY(PrimWeapStatAmmo, Plain),
      NG_KEY(SecWeapStatDamage, Plain),
      NG_KEY(SecWeapStatCclrch, Plain),
      NG_KEY(SecWeapStatRng1, Plain),
      NG_KEY(SecWeapStatRng2, Plain),
      NG_KEY(SecWeapStatRng3, Plain),
      NG_KEY(SecWeapStatRng4, Plain),
      NG_KEY(SecWeapStatAmmo, Plain),
      NG_KEY(RRSLT, Number),
      NG_KEY(FRSLT, Number),
      NG_KEY(Random, Number),
      NG_KEY(PhaseNum, Number),
      NG_KEY(lastTab, Number),
      NG_KEY(roundcnt, ReadAgain),
      NG_KEY(roundcnt, ReadAgain),
      NG_KEY(Skill, Encoded),
      NG_KEY(LastWeight, Weight),
      NG_KEY(TurnDone, Flag),
      NG_KEY(Race, Encoded),
      NG_KEY(TBTTPrim, Encoded),
      NG_KEY(RCPrim, Encoded),
      NG_KEY(GyroPrim, Encoded),
      NG_KEY(URCPrim, Encoded),
      NG_KEY(SmLPrim, Strict),
      NG_KEY(LaserPrim, Strict),
      NG_KEY(SmtGogPrim, Strict),
      NG_KEY(TBTTSec, Encoded),
      NG_KEY(RCSec, Encoded),
      NG_KEY(GyroSec, Encoded),
      NG_KEY(URCSec, Encoded),
      NG_KEY(SmLSec, Strict),
      NG_KEY(LaserSec, Strict),
      NG_KEY(SmtGogSec, Strict),
      NG_KEY(TwoGuns, Strict),
      NG_KEY(PainResistance, Strict),
      NG_KEY(ArmorCPmod, Strict),
      NG_KEY(ArmorQCKmod, Strict),
      NG_KEY(ArmorBAL, Strict),
      NG_KEY(ArmorIMP, Strict),
      NG_KEY(SkillPrimaryName, Encoded),
      NG_KEY(SkillPrimaryValue, Strict),
      NG_KEY(SkillSecondaryName, Encoded),
      NG_KEY(SkillSecondaryValue, Strict),
      NG_KEY(SkillUnarmedName, Encoded),
      NG_KEY(SkillUnarmedValue, Strict),
      NG_KEY(SkillLastName, Encoded),
      NG_KEY(SkillLastValue, Strict),
      NG_KEY(SkillWeapType, Strict),
      NG_KEY(NoteFileName, Plain),
      NG_KEY(natThermographic, Flag),
      NG_KEY(natLowLight, Flag),
      NG_KEY(augThermographic, Flag),
      NG_KEY(augLowLight, Flag),
      NG_KEY(CP, Strict),
      NG_KEY(SP, Strict),
      NG_KEY(SD, Strict),
      NG_KEY(AS, Strict),
      NG_KEY(KP, Strict),
  };
  return keys;
}

#undef NG_KEY

namespace {

bool IsLineBreak(char c) { return c == '\r' || c == '\n'; }

std::string Written(SlotForm form, const std::string& value) {
  if (form == SlotForm::Encoded) return EncodeNG3(value);
  // A decoded name or figure of a character file may hold line breaks.
  if (form == SlotForm::Name) return Replaced(Replaced(value, "\r", "^"), "\n", "`");
  std::string line = value;
  std::ranges::replace_if(line, IsLineBreak, ' ');
  return line;
}
std::string Written(SlotForm form, Integer value) {
  return form == SlotForm::Emptied ? std::string{} : PrintForm(value);
}
std::string Written(SlotForm, std::int32_t value) { return PrintForm(value); }
std::string Written(SlotForm, Boolean value) { return value.Raw() != 0 ? "1" : "0"; }

std::string NumberAsText(std::string_view text) {
  const double number = LeadingNumber(text);
  if (!std::isfinite(number)) ThrowOverflow();
  return PlainText(number);
}

void Take(SlotForm form, std::string_view text, std::string& into) {
  if (form == SlotForm::Weight) {
    into = NumberAsText(text);
  } else {
    into = form == SlotForm::Plain ? std::string(text) : DecodeNG3(text);
  }
}
void Take(SlotForm form, std::string_view text, Integer& into) {
  into = form == SlotForm::Strict ? StrictInteger(text) : LenientInteger(text);
}
void Take(SlotForm, std::string_view text, std::int32_t& into) { into = LenientLong(text); }
void Take(SlotForm, std::string_view text, Boolean& into) { into = LeadingNumber(text) == 1; }

}  // namespace

std::string WrittenValue(const PlayerRecord& record, const SlotKey& key) {
  return std::visit([&](auto member) { return Written(key.form, record.*member); }, key.from);
}

void TakeValue(PlayerRecord& record, const SlotKey& key, std::string_view text) {
  std::visit([&](auto member) { Take(key.form, text, record.*member); }, key.into);
}

}  // namespace ng
