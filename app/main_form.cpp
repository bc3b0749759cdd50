#include "app/main_form.h"

#include <utility>

#include "base/number_text.h"
#include "base/text.h"

namespace ng {
namespace {

constexpr const char* kSection = "Settings";

struct LayoutKey {
  const char* key;
  int WindowLayout::*member;
};
constexpr std::array<LayoutKey, 4> kLayoutKeys = {{{"MainLeft", &WindowLayout::MainLeft},
                                                   {"MainTop", &WindowLayout::MainTop},
                                                   {"MainWidth", &WindowLayout::MainWidth},
                                                   {"MainHeight", &WindowLayout::MainHeight}}};

/// File names joined by "|".
std::vector<std::string> FileNames(const std::string& joined) {
  std::vector<std::string> names;
  for (const std::string_view name : Split(joined, '|')) {
    if (!name.empty()) names.emplace_back(name);
  }
  return names;
}

}  // namespace

void HeaderPanel::Show(const PlayerRecord& record) {
  lblName2 = record.Name;
  lblNameX = record.Name;
  lblNameY = record.Name;
  lblNameZ = record.Name;
  lblRace2 = record.Race;
  txtRRSLT = PlainText(record.RRSLT);
  lblFRSLT = PlainText(record.FRSLT);
  txtInit = {PlainText(record.CurInitNatural), PlainText(record.CurInitAugmented)};
  txtReac = {PlainText(record.CurReactNatural), PlainText(record.CurReactAugmented)};
  optInitMode = record.CurInitMode == 0 ? 0 : 1;
}

MainForm::MainForm(Environment& environment, LoaderForm& loader, OptionsForm& options)
    : gmLog(environment.files, environment.location.directory + "\\ngtracker.txt"),
      reference(info, environment.files),
      GridX(fight),
      sequencer(fight, GridX, environment.uniform, environment.prompts, *this),
      actions(fight, characters, GridX, sequencer, gmLog, environment.prompts, *this),
      damageMonitor(fight, damage, sequencer),
      ngdr(fight, environment.uniform, environment.prompts, *this,
           [this](Slot slot, Integer left) { SpendPool(slot, left); }),
      firing(fight, characters, weapons, ngdr, gmLog, environment.prompts, environment.settings),
      skillTests(fight, firing, ngdr, skillLevel, environment.prompts, environment.settings),
      fightFiles(*this, environment),
      itemInfo(*this, environment.files),
      environment_(environment),
      loader_(loader),
      options_(options) {}

template <typename Table>
void MainForm::Take(Table& table, Loaded<Table> loaded) {
  table = std::move(loaded.table);
  if (!loaded.message.empty()) environment_.prompts.Message(loaded.message);
}

void MainForm::Form_Load() {
  for (const LayoutKey& key : kLayoutKeys) {
    layout.*key.member = environment_.userSettings.Get(kSection, key.key, layout.*key.member);
  }
  GridX.RefreshGrid();
  XFerPC(0);
  const std::string& datDir = environment_.settings.DatDir;
  const std::string message = info.Load(
      environment_.files, {environment_.location.directory + "\\info.dat", datDir + "\\info.dat"});
  if (!message.empty()) environment_.prompts.Message(message);
  Take(gearTable, LoadGearTable(environment_.files, datDir));
  Take(rangeTable, LoadRangeTable(environment_.files, datDir));
  Take(skillTable, LoadSkillTable(environment_.files, datDir));
}

void MainForm::Form_Unload() {
  for (const LayoutKey& key : kLayoutKeys) {
    environment_.userSettings.Save(kSection, key.key, layout.*key.member);
  }
}

void MainForm::mnuFileNew() {
  actions.RemoveAll();
  const Integer left = fight.CountPlayers();
  if (left > 0) {
    statusMessage = PlainText(left) + (left == 1 ? " combatant remains" : " combatants remain") +
                    " beyond an empty slot";
  }
}

void MainForm::mnuFileOpen() {
  loader_.Form_Load();
  environment_.prompts.ShowModal(ModalForm::Loader);
  std::vector<std::string> names = FileNames(loader_.selectionList);
  for (std::string& name : names) name = ImportName(environment_.settings.NG3Dir, name);
  fightFiles.ImportCharacters(names);
}

void MainForm::Form_Drop(const std::string& names) { fightFiles.OpenFiles(FileNames(names)); }

void MainForm::mnuFileExit() {
  // What is on the sheet is a part of the fight.
  SyncSheet();
  if (fightFiles.Changed()) {
    const SaveChoice choice = environment_.prompts.AskToSave(
        "The fight has changed since it was last saved. Save it now?");
    if (choice == SaveChoice::Cancel) return;
    if (choice == SaveChoice::Save && !fightFiles.SaveState()) return;
  }
  closing = true;
}

void MainForm::mnuViewGM() {
  frmGMOpen = true;
  gmLog.FailureSeen();
}

void MainForm::mnuViewLog() {
  logViewer.Form_Load(environment_.files, environment_.location.directory + "\\ngtracker.txt");
  gmLog.FailureSeen();
}

void MainForm::cmdAddNote() { gmLog.Add(environment_.prompts.Input(" Enter your note")); }

// What is on the sheet goes into the record before a command shows the sheet again.
void MainForm::mnuTReroll() {
  SyncSheet();
  sequencer.Reroll(environment_.settings.CloneInit);
}

void MainForm::mnuTReset() {
  SyncSheet();
  sequencer.Reset();
}

void MainForm::mnuTNext() {
  SyncSheet();
  sequencer.Next();
}

void MainForm::mnuTPrev() { sequencer.Previous(); }

void MainForm::mnuTClear() { sequencer.ClearEvents(); }

void MainForm::mnuPDelay() { actions.ToggleDelay(); }

void MainForm::mnuPInactive() {
  actions.ToggleInactive();
  ShowHeader();
}

void MainForm::mnuPGrenade() {
  const Integer before = fight.grenadeCnt;
  actions.Grenade();
  if (fight.grenadeCnt != before) statusMessage = header.lblName2 + ": a grenade is in the air";
}

void MainForm::mnuPRocket() {
  const std::size_t before = fight.GlobalEvents.size();
  actions.Rocket();
  if (fight.GlobalEvents.size() != before) {
    statusMessage = header.lblName2 + ": a rocket is in the air";
  }
}

void MainForm::mnuPMult() {
  Integer asked;
  const Integer made = actions.Multiply(asked);
  if (asked == 0) return;
  statusMessage = made == asked ? PlainText(made) + " copies made"
                                : "The table is full: " + PlainText(made) + " of " +
                                      PlainText(asked) + " copies made";
}

void MainForm::mnuPRemove() {
  const std::string name = header.lblName2;
  actions.Remove();
  if (!name.empty()) statusMessage = name + " removed";
}

void MainForm::mnuViewOptions() {
  options_.Form_Load();
  environment_.prompts.ShowModal(ModalForm::Options);
}

void MainForm::mnuHelpAbout() { environment_.prompts.ShowModal(ModalForm::About); }

void MainForm::GridX_Click(int row) {
  if (row < 1 || row > GridX.RowCount()) return;
  SyncSheet();
  XFerPC(fight.InitOrder[OrderPosition::From(row)]);
  GridX.SetCurrent(row, InitiativeGrid::kRollColumn);
}

void MainForm::GridX_Cell(int row, int column) { GridX.SetCurrent(row, column); }

void MainForm::GridX_KeyPress(int code) {
  if (GridX.TypeCharacter(code)) TakeCell();
}

void MainForm::GridX_Restore() {
  if (GridX.RestoreText()) TakeCell();
}

void MainForm::TakeCell() {
  const Slot slot = fight.InitOrder[OrderPosition::From(GridX.CurrentRow())];
  if (slot == 0) return;
  const auto& text = GridX.RowAt(GridX.CurrentRow()).text;
  PlayerRecord& record = fight.Players[slot];
  if (GridX.CurrentColumn() == InitiativeGrid::kTextColumn) {
    record.CondCode = text[InitiativeGrid::kTextColumn];
    return;
  }
  // A stray letter must not wipe out a roll.
  if (!IsWholeNumber(text[InitiativeGrid::kRollColumn])) return;
  record.RRSLT = LenientInteger(text[InitiativeGrid::kRollColumn]);
  if (slot == fight.CurrentPCpointer) header.txtRRSLT = PlainText(record.RRSLT);
}

void MainForm::ShowRoller() {
  if (environment_.settings.DisableNGDR) {
    statusMessage = "The dice roller is switched off in the options";
    return;
  }
  ngdr.visible = true;
}

bool MainForm::WieldsInMelee(const PlayerRecord& combatant, Weapon weapon) const {
  return IsMeleeWeaponType(ConvertSkill(skillTable, combatant.*FieldsOf(weapon).skillName));
}

Integer MainForm::WeaponModifier(const PlayerRecord& combatant, Weapon weapon) const {
  return firing.TotalsOf(combatant)[static_cast<std::size_t>(weapon)];
}

void MainForm::FollowTest() {
  try {
    ngdr.Follow();
  } catch (const RuntimeError&) {
    return;
  }
}

void MainForm::ShowRestored(Slot slot) {
  fight.Recount();
  for (const Slot restored : AllSlots()) {
    PlayerRecord& record = fight.Players[restored];
    // The file holds the boxes, not the code that the grid shows for them.
    if (record.CurDamPhysical != 0 || record.CurDamStun != 0) {
      record.CondCode = ConditionCode(record);
    }
  }
  GridX.RefreshGrid();
  // A load that broke off may have left any number.
  const bool held = slot > 0 && slot <= Fight::kLastSlot;
  XFerPC(held ? slot : Slot(0));
}

void MainForm::tabMain_Click(int page) {
  tabMain = page;
  if (Displaying()) Displayed().lastTab = page;
}

void MainForm::XFerPC(Slot slot) {
  const PlayerRecord& record = fight.Players[slot];
  if (slot != fight.CurrentPCpointer) itemInfo.MarkNothing();
  fight.CurrentPCpointer = slot;
  header.Show(record);
  damage.Show(record);
  weapons.Show(record);
  pools.Show(record);
  sheet.ShowCharacter(characters.Of(record));
  sheet.ShowArmourOf(record);
  ngdr.Body = AugmentedValue(sheet.lblAttr[static_cast<std::size_t>(Attribute::Body)]);
  skillTests.lblSkill = record.Skill;
  txtNotes = record.Notes;
  txtNoteFileName = record.NoteFileName;
  actions.delayChecked = static_cast<bool>(record.Delay);
  actions.inactiveChecked = static_cast<bool>(record.inactive);
  // Numbers out of range can end these, so that all else is shown by now.
  firing.UpdateWeaponModifiers();
}

void MainForm::RecalcArmor() {
  if (!Displaying()) return;
  const CharacterEntry* entry = characters.Of(Displayed());
  if (entry == nullptr) return;
  StoreArmour(Displayed(), DeriveArmour(*entry));
  ShowDerivedArmour();
}

void MainForm::ShowDerivedArmour() { sheet.ShowFigures(ArmourOf(Displayed())); }

void MainForm::SyncSheet() {
  if (!Displaying()) return;
  PlayerRecord& record = Displayed();
  damage.Sync(record);
  weapons.Sync(record);
  pools.Sync(record);
  record.Skill = skillTests.lblSkill;
}

void MainForm::RefreshPools() { ng::RefreshPools(fight, characters); }

std::string MainForm::RoundsLeft(Weapon weapon) const {
  if (weapons.lblAmmo[static_cast<std::size_t>(weapon)].empty()) return {};
  try {
    return PlainText(AmmoLeft(fight.RecordOf(fight.CurrentPCpointer), weapon));
  } catch (const RuntimeError&) {
    // The window is painted outside every command: a number that cannot be counted is not shown.
    return {};
  }
}

int MainForm::ShownRow() const { return fight.FindInOrder(fight.CurrentPCpointer).Value(); }

}  // namespace ng
