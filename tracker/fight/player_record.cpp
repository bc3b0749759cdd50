#include "tracker/fight/player_record.h"

#include "base/number_text.h"

namespace ng {

#define NG_FIELD(name) \
  { #name, &PlayerRecord::name }

const std::vector<PlayerField>& PlayerFields() {
  static const std::vector<PlayerField> fields = {
      NG_FIELD(Name),
      NG_FIELD(Filename),
      NG_FIELD(Delay),
      NG_FIELD(inactive),
      NG_FIELD(SetGreen),
      NG_FIELD(Events),
      NG_FIELD(roundcnt),
      NG_FIELD(CurInitMode),
      NG_FIELD(CurInitNatural),
      NG_FIELD(CurInitAugmented),
      NG_FIELD(CurReactNatural),
      NG_FIELD(CurReactAugmented),
      NG_FIELD(CurDamPhysical),
      NG_FIELD(CurDamOver),
      NG_FIELD(CurDamStun),
      NG_FIELD(CondCode),
      NG_FIELD(TNDamMod),
      NG_FIELD(PrimHand),
      NG_FIELD(PrimAmmo),
      NG_FIELD(SecHand),
      NG_FIELD(SecAmmo),
      NG_FIELD(PrimWeapStatDamage),
      NG_FIELD(PrimWeapStatCclrch),
      NG_FIELD(PrimWeapStatRng1),
      NG_FIELD(PrimWeapStatRng2),
      NG_FIELD(PrimWeapStatRng3),
      NG_FIELD(PrimWeapStatRng4),
      NG_FIELD(PrimWeapStatAmmo),
      NG_FIELD(SecWeapStatDamage),
      NG_FIELD(SecWeapStatCclrch),
      NG_FIELD(SecWeapStatRng1),
      NG_FIELD(SecWeapStatRng2),
      NG_FIELD(SecWeapStatRng3),
      NG_FIELD(SecWeapStatRng4),
      NG_FIELD(SecWeapStatAmmo),
      NG_FIELD(RRSLT),
      NG_FIELD(FRSLT),
      NG_FIELD(Random),
      NG_FIELD(PhaseNum),
      NG_FIELD(lastTab),
      NG_FIELD(Skill),
      NG_FIELD(LastWeight),
      NG_FIELD(CharacterData),
      NG_FIELD(TurnDone),
      NG_FIELD(Race),
      NG_FIELD(TBTTPrim),
      NG_FIELD(RCPrim),
      NG_FIELD(GyroPrim),
      NG_FIELD(URCPrim),
      NG_FIELD(SmLPrim),
      NG_FIELD(LaserPrim),
      NG_FIELD(SmtGogPrim),
      NG_FIELD(TBTTSec),
      NG_FIELD(RCSec),
      NG_FIELD(GyroSec),
      NG_FIELD(URCSec),
      NG_FIELD(SmLSec),
      NG_FIELD(LaserSec),
      NG_FIELD(SmtGogSec),
      NG_FIELD(TwoGuns),
      NG_FIELD(PainResistance),
      NG_FIELD(ArmorCPmod),
      NG_FIELD(ArmorQCKmod),
      NG_FIELD(ArmorBAL),
      NG_FIELD(ArmorIMP),
      NG_FIELD(SkillPrimaryName),
      NG_FIELD(SkillPrimaryValue),
      NG_FIELD(SkillSecondaryName),
      NG_FIELD(SkillSecondaryValue),
      NG_FIELD(SkillUnarmedName),
      NG_FIELD(SkillUnarmedValue),
      NG_FIELD(SkillLastName),
      NG_FIELD(SkillLastValue),
      NG_FIELD(SkillWeapType),
      NG_FIELD(NoteFileName),
      NG_FIELD(Notes),
      NG_FIELD(natThermographic),
      NG_FIELD(natLowLight),
      NG_FIELD(augThermographic),
      NG_FIELD(augLowLight),
      NG_FIELD(CP),
      NG_FIELD(SP),
      NG_FIELD(SD),
      NG_FIELD(AS),
      NG_FIELD(KP),
      NG_FIELD(Resumed),
      NG_FIELD(RangeSelPrim),
      NG_FIELD(RangeSelSec),
      NG_FIELD(FiredThisTurn),
  };
  return fields;
}

#undef NG_FIELD

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
