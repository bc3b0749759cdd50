#include "tracker/fight/player_record.h"

#include "base/number_text.h"

namespace ng {

const std::vector<PlayerField>& PlayerFields() {
  static const std::vector<PlayerField> fields = {
#define NG_FIELD(type, name, start) {#name, &PlayerRecord::name},
#include "tracker/fight/player_fields.def"
  };
  return fields;
}

namespace {

std::string ValueText(const std::string& value) { return value; }
std::string ValueText(Integer value) { return PlainText(value); }
std::string ValueText(Boolean value) { return std::to_string(value.Raw()); }
std::string ValueText(std::int32_t value) { return std::to_string(value); }
std::string ValueText(CharacterIndex value) { return std::to_string(value.Value()); }

}  // namespace

std::string FieldText(const PlayerRecord& record, const PlayerField& field) {
  return std::visit([&record](auto member) { return ValueText(record.*member); }, field.member);
}

}  // namespace ng
