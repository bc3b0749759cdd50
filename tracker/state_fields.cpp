#include "tracker/state_fields.h"

#include <algorithm>
#include <cmath>

#include "app/settings/encoding.h"
#include "base/number_text.h"
#include "base/text.h"

namespace ng {

const std::vector<SlotKey>& SlotKeys() {
  using R = PlayerRecord;
  static const std::vector<SlotKey> keys = {
#define NG_SAVED(type, name, start, form) {#name, SlotForm::form, &R::name, &R::name},
#define NG_SAVED_INTO(type, name, start, form, into) {#name, SlotForm::form, &R::name, &R::into},
#define NG_READ_AGAIN(name) {#name, SlotForm::ReadAgain, &R::name, &R::name},
#include "tracker/fight/player_fields.def"
  };
  return keys;
}

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
