// What the game master does with the displayed combatant: the edits, buttons and lists of the
// pages.

#include <algorithm>

#include "app/main_form.h"
#include "base/number_text.h"

namespace ng {

void MainForm::optInitMode(int option) {
  sequencer.SetInitMode(option);
  header.optInitMode = fight.Players[fight.CurrentPCpointer].CurInitMode == 0 ? 0 : 1;
}

void MainForm::txtRRSLT_Change(const std::string& text) {
  if (!Displaying()) return;
  header.txtRRSLT = text;
  Displayed().RRSLT = LenientInteger(text);
  GridX.RefreshGrid();
}

void MainForm::txtInit_Change(int index, const std::string& text) {
  if (!Displaying()) return;
  header.txtInit.at(static_cast<std::size_t>(index)) = text;
  (index == 0 ? Displayed().CurInitNatural : Displayed().CurInitAugmented) = LenientInteger(text);
}

void MainForm::txtReac_Change(int index, const std::string& text) {
  if (!Displaying()) return;
  header.txtReac.at(static_cast<std::size_t>(index)) = text;
  (index == 0 ? Displayed().CurReactNatural : Displayed().CurReactAugmented) = LenientInteger(text);
}

/// Returns false for an act on no control that the panel lets edit, or with nobody displayed.
template <class Panel>
bool MainForm::EditBound(Panel& panel, const Act& act) {
  const auto rows = Panel::Bound();
  const auto row = std::ranges::find(rows, act.control, &BoundControl<Panel>::name);
  if (row == rows.end() || row->edit == nullptr) return false;
  if (row->elements > 0 && (act.index < 0 || act.index >= row->elements)) ThrowSubscript();
  if (!Displaying()) return false;
  row->edit(panel, static_cast<std::size_t>(act.index), act.text);
  return true;
}

void MainForm::Bound_Change(const Act& act) {
  if (EditBound(damage, act) || EditBound(pools, act)) {
    SyncSheet();
  } else if (EditBound(weapons, act)) {
    UpdateWeapons();
  }
}

void MainForm::Sight_Click(Weapon weapon, Sight sight) {
  if (!Displaying()) return;
  weapons.ClickSight(weapon, sight);
  UpdateWeapons();
}

void MainForm::UpdateWeapons() {
  firing.UpdateWeaponModifiers();
  SyncSheet();
}

void MainForm::Fire(Weapon weapon, int rounds) {
  const int tests = ngdr.TestsStarted();
  firing.Fire(weapon, rounds);
  TellMissingSkill(weapon, tests);
}

void MainForm::FullAuto(Weapon weapon) {
  const int tests = ngdr.TestsStarted();
  firing.FullAuto(weapon);
  TellMissingSkill(weapon, tests);
}

void MainForm::TellMissingSkill(Weapon weapon, int testsBefore) {
  if (ngdr.TestsStarted() == testsBefore) return;
  statusMessage = WieldsInMelee(Displayed(), weapon)
                      ? "No firing skill chosen for this weapon: base number 4 at any range"
                      : "Ready";
}

void MainForm::cmdDisarm(Weapon weapon) { firing.Disarm(weapon); }

void MainForm::cmdSetWeapon(Weapon weapon) {
  const std::string* line = sheet.Line(SheetList::Weapon, itemInfo.Marked(SheetList::Weapon));
  if (line != nullptr) firing.Ready(weapon, *line, rangeTable);
}

void MainForm::ChooseSkill(SkillUse use) {
  const std::string* line = sheet.Line(SheetList::Active, itemInfo.Marked(SheetList::Active));
  if (line != nullptr) skillTests.ChooseSkill(use, *line);
}

void MainForm::Damage(Track track, Integer boxes) {
  damageMonitor.ApplyDamage(track, boxes);
  firing.UpdateWeaponModifiers();
  ShowHeader();
}

void MainForm::cmdDamZero(Track track) {
  damageMonitor.ClearTrack(track);
  firing.UpdateWeaponModifiers();
  ShowHeader();
}

void MainForm::ChangePool(std::string PoolPanel::*box, std::string (*change)(const std::string&)) {
  if (!Displaying()) return;
  const std::string text = change(pools.*box);
  LenientInteger(text);
  pools.*box = text;
}

void MainForm::ChangeCombatPool(std::string (*change)(const std::string&)) {
  if (!Displaying()) return;
  const std::string text = change(pools.txtCP);
  Displayed().CP = LenientInteger(text);
  pools.txtCP = text;
}

void MainForm::cmdSDplus() {
  if (Displaying()) pools.SetAside();
}

void MainForm::cmdSDnegative() {
  if (Displaying()) pools.TakeBack();
}

void MainForm::CP(Integer value) {
  if (!Displaying()) return;
  Displayed().CP = value;
  pools.txtCP = PlainText(value);
}

void MainForm::SpendPool(Slot slot, Integer left) {
  if (slot == fight.CurrentPCpointer) {
    CP(left);
  } else if (slot != 0) {
    fight.Players[slot].CP = left;
  }
}

void MainForm::optRangeSel(Weapon weapon, int range) {
  if (!Displaying()) return;
  (weapon == Weapon::Primary ? Displayed().RangeSelPrim : Displayed().RangeSelSec) = range;
  weapons.optRangeSel[static_cast<std::size_t>(weapon)] = range;
  ngdr.optRangeSel_Click(weapon);
}

void MainForm::lstArmor_Check(int index) { ToggleCarried(&CharacterEntry::armour, index); }

void MainForm::lstWeapon_Check(int index) { ToggleCarried(&CharacterEntry::weapons, index); }

void MainForm::lstGear_Check(int index) { ToggleCarried(&CharacterEntry::gear, index); }

void MainForm::ToggleCarried(std::vector<CarriedLine> CharacterEntry::*list, int index) {
  CharacterEntry* entry = Displaying() ? characters.Of(Displayed()) : nullptr;
  if (entry == nullptr) return;
  std::vector<CarriedLine>& lines = entry->*list;
  if (index < 0 || static_cast<std::size_t>(index) >= lines.size()) ThrowSubscript();
  CarriedLine& line = lines[static_cast<std::size_t>(index)];
  // Laced bones cannot be taken off.
  line.carried = !line.carried || IsBoneLace(line);
  sheet.ShowCharacter(entry);
  RecalcArmor();
  itemInfo.Refresh();
}

void MainForm::txtNotes_Change(const std::string& text) {
  if (!Displaying()) return;
  txtNotes = text;
  Displayed().Notes = text;
}

void MainForm::txtNoteFileName_Change(const std::string& text) {
  if (!Displaying()) return;
  txtNoteFileName = text;
  Displayed().NoteFileName = text;
}

}  // namespace ng
