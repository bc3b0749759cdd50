#include "import/character_display.h"

#include "base/number_text.h"
#include "base/text.h"

namespace ng {

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
