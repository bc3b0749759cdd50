#pragma once

#include <array>
#include <string>
#include <vector>

#include "import/armour.h"
#include "import/character_sheet.h"
#include "tracker/fight/player_record.h"

namespace ng {

/// The lists of the pages.
enum class SheetList { Weapon, Armor, Gear, Active, Other, Magic, Edges, Augments, Contacts, Race };
constexpr std::size_t kSheetLists = 10;

/// The sheet of the displayed combatant as the main window's pages show it.
struct SheetPanel {
  std::array<std::string, kAttributeCount> lblAttr;
  /// Combat, control, hacking, spell, task, astral, karma.
  std::array<std::string, 7> lblPool;
  std::string lblrace;
  std::string lblRunMult;
  std::string lblMageType;
  std::string lblAttacks;

  std::vector<CarriedLine> lstArmor;
  std::vector<CarriedLine> lstGear;
  std::vector<CarriedLine> lstWeapon;
  /// Active skills; languages and knowledge go to `lstOther`. Columns: name, rating.
  std::vector<std::string> lstActive;
  std::vector<std::string> lstOther;
  std::vector<std::string> lstMagic;
  /// Columns: name, then what the file says beside it.
  std::vector<std::string> lstEdges;
  std::vector<std::string> lstAugments;
  /// Columns: name, level.
  std::vector<std::string> lstContacts;
  std::vector<std::string> lstRace;

  std::string lblBAL;
  std::string lblIMP;
  std::string lblQCKmod;
  std::string lblCPmod;
  std::string lblWeight;
  std::string lblWeight2;
  std::string lblLWght;

  /// The titles of the three lists with marks, the mnemonic marked by "&", with the weight that is
  /// worn or carried of each.
  std::string grpWeapon;
  std::string grpArmor;
  std::string grpGear;

  /// A line of a list, null when there is none.
  const std::string* Line(SheetList list, int index) const;
  /// The same for the lists with marks; null for the others.
  const CarriedLine* Carried(SheetList list, int index) const;

  /// Fills the labels and lists from a sheet; null empties them.
  void ShowCharacter(const CharacterEntry* entry);
  /// Shows the armour fields and the weight of a record.
  void ShowArmourOf(const PlayerRecord& record);
  /// Shows freshly derived figures. Here the two modifiers are left out when they are nothing, and
  /// the pool modifier is spaced out; ShowArmourOf writes both another way, so the
  /// panel tells whether the figures are fresh.
  void ShowFigures(const ArmourFigures& figures);

 private:
  const std::vector<std::string>& TextLines(SheetList list) const;
  const std::vector<CarriedLine>* CarriedLines(SheetList list) const;
  void ShowWeight(double weight);
};

}  // namespace ng
