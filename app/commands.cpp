#include "app/commands.h"

#include <array>
#include <map>
#include <string>
#include <vector>

#include "base/runtime_error.h"

namespace ng {
namespace {

/// The element of a two-element control array that the act names.
std::size_t Element(const Act& act) {
  if (act.index < 0 || act.index > 1) ThrowSubscript();
  return static_cast<std::size_t>(act.index);
}

using Run = void (*)(Session&, const Act&);

/// A command that takes nothing from the act.
template <void (MainForm::*function)()>
void Main(Session& session, const Act&) {
  (session.main.*function)();
}

Weapon WeaponOf(const Act& act) { return Element(act) == 0 ? Weapon::Primary : Weapon::Secondary; }

template <Sight sight>
void ClickSight(Session& session, const Act& act) {
  session.main.Sight_Click(WeaponOf(act), sight);
}

template <int rounds>
void Fire(Session& session, const Act& act) {
  session.main.firing.Fire(WeaponOf(act), rounds);
}

template <SkillUse use>
void ChooseSkill(Session& session, const Act&) {
  session.main.ChooseSkill(use);
}

/// A command that takes the act's index: a row, a code, a choice.
template <void (MainForm::*function)(int)>
void MainIndexed(Session& session, const Act& act) {
  (session.main.*function)(act.index);
}

template <void (MainForm::*function)(const std::string&)>
void MainText(Session& session, const Act& act) {
  (session.main.*function)(act.text);
}

Track TrackOf(const Act& act) { return Element(act) == 0 ? Track::Physical : Track::Stun; }

/// A wound of so many boxes on the track that the act names.
template <int boxes>
void Wound(Session& session, const Act& act) {
  session.main.Damage(TrackOf(act), boxes);
}

template <std::string PoolPanel::*box, std::string (*change)(const std::string&)>
void Pool(Session& session, const Act&) {
  session.main.ChangePool(box, change);
}

/// A line of a list was marked.
template <SheetList list>
void Mark(Session& session, const Act& act) {
  session.main.itemInfo.Mark(list, act.index);
}

template <SheetList list>
void Inform(Session& session, const Act&) {
  session.main.itemInfo.Form_Load(list);
}

// The range choice of the second weapon follows the four of the first.
void ChooseRange(Session& session, const Act& act) {
  if (act.index < 0 || act.index >= static_cast<int>(2 * kRanges)) ThrowSubscript();
  const int ranges = static_cast<int>(kRanges);
  session.main.optRangeSel(act.index < ranges ? Weapon::Primary : Weapon::Secondary,
                           act.index % ranges);
}

/// A command of the dice roller that takes the act's index.
template <void (DiceRoller::*function)(int)>
void Roller(Session& session, const Act& act) {
  (session.main.ngdr.*function)(act.index);
}

/// An edit of one of the dice roller's boxes.
template <void (DiceRoller::*function)(const std::string&)>
void RollerBox(Session& session, const Act& act) {
  (session.main.ngdr.*function)(act.text);
}

constexpr std::string_view kRollerPrefix = "ngdr.";

/// A click on any of the captions beside the modifier boxes.
void ClickCaption(Session& session, const Act& act) {
  const std::string_view control = std::string_view(act.control).substr(kRollerPrefix.size());
  session.main.ngdr.Caption_Click(*FindCaption(control));
}

void OpenTestPage(Session& session, const Act& act) {
  if (act.index < 0 || act.index > static_cast<int>(TestPage::General)) ThrowSubscript();
  session.main.ngdr.tabTest_Click(static_cast<TestPage>(act.index));
}

void ChangeBound(Session& session, const Act& act) { session.main.Bound_Change(act); }

/// The edits of a panel's controls that are bound to fields.
template <class Panel>
void AddBound(std::vector<Command>& commands) {
  for (const BoundControl<Panel>& control : Panel::Bound()) {
    if (control.edit != nullptr) commands.push_back({control.name, ChangeBound});
  }
}

const auto kCommands = std::to_array<Command>({
    {"mnuFileNew", Main<&MainForm::mnuFileNew>, Menu::File, 0, "&New", "Ctrl+Shift+N",
     "Remove the combatants and begin with an empty table", "New", "New"},
    {"mnuFileOpen", Main<&MainForm::mnuFileOpen>, Menu::File, 0, "&Open...", "Ctrl+O",
     "Import characters from their files", "Open", "Open"},
    {"mnuFileLoad", Main<&MainForm::mnuFileLoad>, Menu::File, 1, "&Load State...", "Ctrl+L",
     "Take up a saved fight"},
    {"mnuFileSave", Main<&MainForm::mnuFileSave>, Menu::File, 1, "&Save State...", "Ctrl+S",
     "Save this fight"},
    {"mnuFileExit", Main<&MainForm::mnuFileExit>, Menu::File, 2, "E&xit", "Ctrl+Q",
     "Close the tracker"},

    {"mnuTReroll", Main<&MainForm::mnuTReroll>, Menu::Turn, 0, "&Reroll", "Ctrl+R",
     "Roll everybody's initiative and begin a combat turn", "Reroll", "Reroll"},
    {"mnuTReset", Main<&MainForm::mnuTReset>, Menu::Turn, 0, "Reset to &Top", "Ctrl+T",
     "Begin a combat turn with the initiative as it is", "Reset", "Reset"},
    {"mnuTPrev", Main<&MainForm::mnuTPrev>, Menu::Turn, 1, "&Previous", "F7",
     "Step back to look at earlier actions of this combat turn", "Prev", "Prev"},
    {"mnuTNext", Main<&MainForm::mnuTNext>, Menu::Turn, 1, "&Next", "F8",
     "Step on to the next action", "Next", "Next"},
    {"mnuTClear", Main<&MainForm::mnuTClear>, Menu::Turn, 2, "&Clear All Events", "Ctrl+E",
     "Forget all grenades and rockets that are still to go off", "ClearFlag", "Clear flag"},

    {"mnuPDelay", Main<&MainForm::mnuPDelay>, Menu::Combatant, 0, "Toggle &Delay", "Ctrl+D",
     "Put off this combatant's action, or let it act now", "Delay", "Delay", true},
    {"mnuPInactive", Main<&MainForm::mnuPInactive>, Menu::Combatant, 0, "Toggle Active/&Inactive",
     "Ctrl+I", "Take this combatant out of initiative, or back in", "Disable", "Disable", true},
    {"mnuPGrenade", Main<&MainForm::mnuPGrenade>, Menu::Combatant, 1, "&Grenade", "Ctrl+G",
     "This combatant throws a grenade, which goes off in the next combat turn", "Grenade",
     "Grenade"},
    {"mnuPRocket", Main<&MainForm::mnuPRocket>, Menu::Combatant, 1, "&Rocket", "Ctrl+K",
     "This combatant fires a rocket, which goes off at the end of the combat turn", "Rocket",
     "Rocket"},
    {"mnuPMult", Main<&MainForm::mnuPMult>, Menu::Combatant, 2, "&Multiply character (NPC)...",
     "Ctrl+M", "Make copies of this combatant", "Multiply", "Multiply"},
    {"mnuPRemove", Main<&MainForm::mnuPRemove>, Menu::Combatant, 2, "De&lete Character", "Ctrl+Del",
     "Remove this combatant from the fight", "Delete", "Delete"},

    {"mnuViewOptions", Main<&MainForm::mnuViewOptions>, Menu::View, 0, "&Options...", "Ctrl+,",
     "Choose the directories and switches"},
    {"mnuViewGM", Main<&MainForm::mnuViewGM>, Menu::View, 1, "&Game Master", "Ctrl+J",
     "Show the game master's list of notes"},
    {"mnuViewLog", Main<&MainForm::mnuViewLog>, Menu::View, 1, "&Log", "Ctrl+Shift+J",
     "Show what the log file holds of this and earlier evenings"},
    {"mnuViewReference", Main<&MainForm::mnuViewReference>, Menu::View, 1, "Re&ference", "Ctrl+F",
     "Look up an entry of the reference file"},
    {"mnuViewInfo", Main<&MainForm::mnuViewInfo>, Menu::View, 1, "&Item Information",
     "Ctrl+Shift+I", "Show every figure of the line that was marked last"},
    {"ShowRoller", Main<&MainForm::ShowRoller>, Menu::View, 1, "Dice &Roller", "F12",
     "Show the dice roller"},
    {"mnuViewStatusBar", Main<&MainForm::mnuViewStatusBar>, Menu::View, 1, "&Status Bar", "Ctrl+/",
     "Show or hide the status bar", "", "", true},
    {"mnuViewDark", Main<&MainForm::mnuViewDark>, Menu::View, 1, "&Dark Colours", "Ctrl+Shift+D",
     "Light or dark colours, until the program closes", "", "", true},
    {"mnuHelpContents", [](Session& s, const Act& a) { s.main.help.Form_Load(a.text); }, Menu::Help,
     0, "&Help", "F1", "How a combat turn runs, and all commands and keys"},
    {"mnuHelpAbout", Main<&MainForm::mnuHelpAbout>, Menu::Help, 1, "&About NGtracker", "Shift+F1",
     "Which version this is, and what it is built on"},

    {"Form_Drop", MainText<&MainForm::Form_Drop>},
    {"GridX_Click", MainIndexed<&MainForm::GridX_Click>},
    {"GridX_KeyPress", MainIndexed<&MainForm::GridX_KeyPress>},
    {"GridX_Roll", [](Session& s, const Act& a) { s.main.GridX_Cell(a.index, 1); }},
    {"GridX_PM", [](Session& s, const Act& a) { s.main.GridX_Cell(a.index, 2); }},
    {"GridX_Name", [](Session& s, const Act& a) { s.main.GridX_Cell(a.index, 0); }},

    {"optInitMode", MainIndexed<&MainForm::optInitMode>},
    {"txtRRSLT", MainText<&MainForm::txtRRSLT_Change>},
    {"txtInit",
     [](Session& s, const Act& a) { s.main.txtInit_Change(static_cast<int>(Element(a)), a.text); }},
    {"txtReac",
     [](Session& s, const Act& a) { s.main.txtReac_Change(static_cast<int>(Element(a)), a.text); }},
    {"tabMain", MainIndexed<&MainForm::tabMain_Click>},

    {"cmdLDam", Wound<1>},
    {"cmdMDam", Wound<3>},
    {"cmdSDam", Wound<6>},
    {"cmdDDam", Wound<10>},
    {"cmdIncrease", Wound<1>},
    {"cmdReduce", Wound<-1>},
    {"cmdDamZero", [](Session& s, const Act& a) { s.main.cmdDamZero(TrackOf(a)); }},
    {"chkSmL", ClickSight<Sight::Smartlink>},
    {"chkLaserSight", ClickSight<Sight::Laser>},
    {"chkSmtGoggles", ClickSight<Sight::Goggles>},
    {"optRangeSel", ChooseRange},
    {"cmdShots1", Fire<1>},
    {"cmdShots3", Fire<3>},
    {"cmdShotsFA", [](Session& s, const Act& a) { s.main.firing.FullAuto(WeaponOf(a)); }},
    {"cmdShotsZ", [](Session& s, const Act& a) { s.main.firing.Reload(WeaponOf(a)); }},
    {"cmdDisarm", [](Session& s, const Act& a) { s.main.cmdDisarm(WeaponOf(a)); }},
    {"cmdSetPrim", [](Session& s, const Act&) { s.main.cmdSetWeapon(Weapon::Primary); }},
    {"cmdSetSecond", [](Session& s, const Act&) { s.main.cmdSetWeapon(Weapon::Secondary); }},
    {"cmdSkillPrimary", ChooseSkill<SkillUse::Primary>},
    {"cmdSkillSecondary", ChooseSkill<SkillUse::Secondary>},
    {"cmdMeleeSkill", ChooseSkill<SkillUse::Unarmed>},
    {"cmdUnarmed", [](Session& s, const Act&) { s.main.skillTests.Unarmed(); }},
    {"cmdBody", [](Session& s, const Act&) { s.main.skillTests.BodyTest(); }},
    {"cmdInfoWeapon", Inform<SheetList::Weapon>},
    {"cmdInfoArmor", Inform<SheetList::Armor>},
    {"cmdInfoGear", Inform<SheetList::Gear>},
    {"lstWeapon_Select", Mark<SheetList::Weapon>},
    {"lstArmor_Select", Mark<SheetList::Armor>},
    {"lstGear_Select", Mark<SheetList::Gear>},
    {"lstActive_Select", Mark<SheetList::Active>},
    {"lstOther_Select", Mark<SheetList::Other>},
    {"lstMagic_Select", Mark<SheetList::Magic>},
    {"lstEdges_Select", Mark<SheetList::Edges>},
    {"lstAugments_Select", Mark<SheetList::Augments>},
    {"lstContacts_Select", Mark<SheetList::Contacts>},
    {"lstRace_Select", Mark<SheetList::Race>},

    {"cmdCPplus", [](Session& s, const Act&) { s.main.ChangeCombatPool(IncPool); }},
    {"cmdCPnegative", [](Session& s, const Act&) { s.main.ChangeCombatPool(DecPool); }},
    {"cmdSPplus", Pool<&PoolPanel::txtSP, IncPool>},
    {"cmdSPnegative", Pool<&PoolPanel::txtSP, DecPool>},
    {"cmdSDplus", Main<&MainForm::cmdSDplus>},
    {"cmdSDnegative", Main<&MainForm::cmdSDnegative>},
    // The plus button of the astral pool bears another name than its box; both names are kept.
    {"cmdADplus", Pool<&PoolPanel::txtAS, IncPool>},
    {"cmdASnegative", Pool<&PoolPanel::txtAS, DecPool>},
    {"cmdKPplus", Pool<&PoolPanel::txtKP, IncPool>},
    {"cmdKPnegative", Pool<&PoolPanel::txtKP, DecPool>},

    {"lstArmor_Check", MainIndexed<&MainForm::lstArmor_Check>},
    {"lstWeapon_Check", MainIndexed<&MainForm::lstWeapon_Check>},
    {"lstGear_Check", MainIndexed<&MainForm::lstGear_Check>},
    {"cmdNoteLoad", Main<&MainForm::cmdNoteLoad>},
    {"cmdNoteSave", Main<&MainForm::cmdNoteSave>},
    {"txtNoteFileName", MainText<&MainForm::txtNoteFileName_Change>},
    {"txtNotes", MainText<&MainForm::txtNotes_Change>},

    {"ngdr.tabTest", OpenTestPage},
    {"ngdr.cmdRoll", [](Session& s, const Act&) { s.main.ngdr.cmdRoll(); }},
    {"ngdr.cmdDicePlusMinus", Roller<&DiceRoller::cmdDicePlusMinus>},
    {"ngdr.cmdCPplusMinus", Roller<&DiceRoller::cmdCPplusMinus>},
    {"ngdr.cmdZeroAll", [](Session& s, const Act&) { s.main.ngdr.cmdZeroAll(); }},
    {"ngdr.cmbVisability", Roller<&DiceRoller::cmbVisability_Click>},
    {"ngdr.cmbVisability2", Roller<&DiceRoller::cmbVisability2_Click>},
    {"ngdr.cmbAttackerMove", Roller<&DiceRoller::cmbAttackerMove_Click>},
    {"ngdr.txtRVar", [](Session& s, const Act& a) { s.main.ngdr.txtRVar_Change(a.index, a.text); }},
    {"ngdr.txtRVar_Clear", Roller<&DiceRoller::ClearBox>},
    {"ngdr.txtNumDice", RollerBox<&DiceRoller::txtNumDice_Change>},
    {"ngdr.txtTargetNum", RollerBox<&DiceRoller::txtTargetNum_Change>},
    {"ngdr.txtCPx", RollerBox<&DiceRoller::txtCPx_Change>},
    {"ngdr.txtRangeTargetNumber", RollerBox<&DiceRoller::txtRangeTargetNumber_Change>},
    {"ngdr.txtMeleeNumber", RollerBox<&DiceRoller::txtMeleeNumber_Change>},
    {"ngdr.txtLastSuccesses",
     [](Session& s, const Act& a) { s.main.ngdr.txtLastSuccesses = a.text; }},
    {"ngdr.Hide", [](Session& s, const Act&) { s.main.ngdr.visible = false; }},
    {"frmGM.cmdAddNote", Main<&MainForm::cmdAddNote>},
    {"frmGM.cmdViewLog", Main<&MainForm::mnuViewLog>},
    {"frmGM.Close", [](Session& s, const Act&) { s.main.frmGMOpen = false; }},
    {"frmDisplay.cmdClose", [](Session& s, const Act&) { s.main.logViewer.cmdClose(); }},
    {"frmReference.txtFilter",
     [](Session& s, const Act& a) { s.main.reference.txtFilter_Change(a.text); }},
    {"frmReference.lstNames_Select",
     [](Session& s, const Act& a) { s.main.reference.lstNames_Select(a.index); }},
    {"frmReference.Close", [](Session& s, const Act&) { s.main.reference.open = false; }},
    {"frmHelp.txtFilter", [](Session& s, const Act& a) { s.main.help.txtFilter_Change(a.text); }},
    {"frmHelp.lstTopics_Select",
     [](Session& s, const Act& a) { s.main.help.lstTopics_Select(a.index); }},
    {"frmHelp.Close", [](Session& s, const Act&) { s.main.help.open = false; }},

    {"frmInfo.Close", [](Session& s, const Act&) { s.main.itemInfo.open = false; }},

    {"frmSelSkillLevel.cmdSkillSelect",
     [](Session& s, const Act& a) { s.main.skillLevel.cmdSkillSelect_Click(a.index); }},
    {"frmSelSkillLevel.Close", [](Session& s, const Act&) { s.main.skillLevel.Form_Close(); }},

    {"frmLoader.Drive1", [](Session& s, const Act& a) { s.loader.Drive1_Change(a.text); }},
    {"frmLoader.DirListBox", [](Session& s, const Act& a) { s.loader.DirListBox_Change(a.text); }},
    {"frmLoader.filesXML_Select",
     [](Session& s, const Act& a) { s.loader.filesXML_Select(a.index); }},
    {"frmLoader.filesXML_Unselect",
     [](Session& s, const Act& a) { s.loader.filesXML_Unselect(a.index); }},
    {"frmLoader.cmdLoad", [](Session& s, const Act&) { s.loader.cmdLoad(); }},
    {"frmLoader.cmdCancel", [](Session& s, const Act&) { s.loader.cmdCancel(); }},

    {"frmOptions.dirNG3", [](Session& s, const Act& a) { s.options.dirNG3 = a.text; }},
    {"frmOptions.dirDat", [](Session& s, const Act& a) { s.options.dirDat = a.text; }},
    {"frmOptions.chkCloneInit",
     [](Session& s, const Act&) { s.options.chkCloneInit = !s.options.chkCloneInit; }},
    {"frmOptions.chkDisableNGDR",
     [](Session& s, const Act&) { s.options.chkDisableNGDR = !s.options.chkDisableNGDR; }},
    {"frmOptions.cmdOK", [](Session& s, const Act&) { s.options.cmdOK(); }},
    {"frmOptions.cmdCancel", [](Session& s, const Act&) { s.options.cmdCancel(); }},
});

constexpr auto kToolbarKeys = std::to_array<const char*>(
    {"New", "Open", "", "Reroll", "Reset", "", "Prev", "Next", "", "ClearFlag", "", "Delay",
     "Disable", "", "Grenade", "Rocket", "", "Multiply", "Delete"});

}  // namespace

std::span<const Command> Commands() {
  static const std::vector<Command> all = [] {
    std::vector<Command> commands(kCommands.begin(), kCommands.end());
    AddBound<DamagePanel>(commands);
    AddBound<WeaponPanel>(commands);
    AddBound<PoolPanel>(commands);
    return commands;
  }();
  return all;
}

std::span<const char* const> ToolbarKeys() { return kToolbarKeys; }

const Command* FindCommand(std::string_view name) {
  static const auto byName = [] {
    std::map<std::string, const Command*, std::less<>> map;
    for (const Command& command : Commands()) map.emplace(command.name, &command);
    static constexpr Command kCaption{"ngdr.Caption", ClickCaption};
    for (const Caption& caption : Captions()) {
      map.emplace(std::string(kRollerPrefix) + caption.control, &kCaption);
    }
    return map;
  }();
  const auto found = byName.find(name);
  return found == byName.end() ? nullptr : found->second;
}

}  // namespace ng
