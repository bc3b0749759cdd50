#include "import/character_display.h"

#include "base/number_text.h"
#include "base/text.h"

namespace ng {
namespace {

template <typename Line>
const Line* LineAt(const std::vector<Line>& lines, int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= lines.size()) return nullptr;
  return &lines[static_cast<std::size_t>(index)];
}

/// "Weapons – 8.25 carried".
std::string Titled(const char* title, double weight, const char* mark) {
  const std::string number = (weight < 1 ? "0" : "") + TwoDecimals(weight);
  return std::string(title) + " \x96 " + number + " " + mark;
}

}  // namespace

const std::vector<CarriedLine>* SheetPanel::CarriedLines(SheetList list) const {
  switch (list) {
    case SheetList::Weapon:
      return &lstWeapon;
    case SheetList::Armor:
      return &lstArmor;
    case SheetList::Gear:
      return &lstGear;
    default:
      return nullptr;
  }
}

const std::vector<std::string>& SheetPanel::TextLines(SheetList list) const {
  switch (list) {
    case SheetList::Active:
      return lstActive;
    case SheetList::Other:
      return lstOther;
    case SheetList::Magic:
      return lstMagic;
    case SheetList::Edges:
      return lstEdges;
    case SheetList::Augments:
      return lstAugments;
    case SheetList::Contacts:
      return lstContacts;
    default:
      return lstRace;
  }
}

const CarriedLine* SheetPanel::Carried(SheetList list, int index) const {
  const std::vector<CarriedLine>* lines = CarriedLines(list);
  return lines == nullptr ? nullptr : LineAt(*lines, index);
}

const std::string* SheetPanel::Line(SheetList list, int index) const {
  if (CarriedLines(list) == nullptr) return LineAt(TextLines(list), index);
  const CarriedLine* line = Carried(list, index);
  return line == nullptr ? nullptr : &line->text;
}

void SheetPanel::ShowCharacter(const CharacterEntry* entry) {
  static const CharacterEntry kNobody;
  const CharacterEntry& sheet = entry == nullptr ? kNobody : *entry;
  lblAttr = sheet.attributes;
  for (std::size_t i = 0; i < 5; ++i) lblPool[i] = sheet.pools[i];
  lblPool[5] = sheet.astralPool;
  lblPool[6] = sheet.karmaPool;
  lblrace = sheet.raceName;
  lblRunMult = "Run Mult:" + sheet.runMultiplier;
  lblMageType = sheet.mageType;
  lblAttacks = sheet.attacks;

  lstArmor = sheet.armour;
  lstGear = sheet.gear;
  lstWeapon = sheet.weapons;
  const LoadWeights weights = WeightsOf(sheet);
  grpWeapon = Titled("&Weapons", weights.weapons, "carried");
  grpArmor = Titled("Armou&r", weights.armour, "worn");
  grpGear = Titled("&Gear", weights.gear, "carried");
  lstActive.clear();
  lstOther.clear();
  for (const std::string& skill : sheet.skills) {
    const bool other = Contains(skill, "(LAN)") || Contains(skill, "(KNO)");
    (other ? lstOther : lstActive).push_back(skill);
  }
  lstMagic = sheet.magic;
  lstEdges = sheet.edges;
  lstAugments = sheet.augments;
  lstContacts = sheet.contacts;
  lstRace = sheet.raceDescription;
}

void SheetPanel::ShowArmourOf(const PlayerRecord& record) {
  lblBAL = "BAL=" + PlainText(record.ArmorBAL);
  lblIMP = "IMP=" + PlainText(record.ArmorIMP);
  lblQCKmod = "-QCK=" + PlainText(record.ArmorQCKmod);
  lblCPmod = "-CPmod=" + PlainText(record.ArmorCPmod);
  ShowWeight(LeadingNumber(record.LastWeight));
}

void SheetPanel::ShowFigures(const ArmourFigures& figures) {
  lblBAL = "BAL=" + PlainText(figures.ballistic);
  lblIMP = "IMP=" + PlainText(figures.impact);
  lblQCKmod = figures.quicknessModifier < 1 ? "" : "-QCK=" + PlainText(figures.quicknessModifier);
  lblCPmod =
      figures.combatPoolModifier < 1 ? "" : "- CPmod = " + PlainText(figures.combatPoolModifier);
  ShowWeight(figures.weight);
}

void SheetPanel::ShowWeight(double weight) {
  const std::string text = TwoDecimals(weight);
  lblWeight = "Total Weight: " + text;
  lblWeight2 = lblWeight;
  lblLWght = "Wgt:" + text;
}

}  // namespace ng
