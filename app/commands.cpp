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
  session.main.Fire(WeaponOf(act), rounds);
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

/// A line of a list was selected.
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

/// An edge of the main window, in twips.
template <int WindowLayout::*edge>
void KeepPlace(Session& session, const Act& act) {
  session.main.layout.*edge = act.index;
}

void LoadRoller(Session& session, const Act&) {
  const Environment& environment = session.environment;
  session.main.ngdr.Form_Load(environment.files, environment.settings.DatDir);
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

constexpr Command Looking(Command command) {
  command.effect = Effect::Look;
  return command;
}

constexpr Command OfFiles(Command command) {
  command.effect = Effect::Affair;
  return command;
}

/// A change by a control that is no menu entry, with what its step is called.
constexpr Command Step(const char* words, Command command) {
  command.text = words;
  return command;
}

constexpr Command Typing(const char* words, Command command) {
  command.text = words;
  command.effect = Effect::Edit;
  return command;
}

void ChangeBound(Session& session, const Act& act) { session.main.Bound_Change(act); }

/// The edits of a panel's controls that are bound to fields.
template <class Panel>
void AddBound(std::vector<Command>& commands) {
  for (const BoundControl<Panel>& control : Panel::Bound()) {
    if (control.edit == nullptr) continue;
    // A check box is clicked and not typed into.
    const bool check = std::string_view(control.name).starts_with("chk");
    const Command edit = {control.name, ChangeBound};
    commands.push_back(check ? Step(control.words, edit) : Typing(control.words, edit));
  }
}

const auto kCommands = std::to_array<Command>({
    {"mnuFileNew", Main<&MainForm::mnuFileNew>, Menu::File, 0, "&New", "Ctrl+Shift+N",
     "Remove the combatants and begin with an empty table", "New", "New"},
    {"mnuFileOpen", Main<&MainForm::mnuFileOpen>, Menu::File, 0, "&Open...", "Ctrl+O",
     "Import characters from their files", "Open", "Open"},
    {"mnuFileLoad", Main<&MainForm::mnuFileLoad>, Menu::File, 1, "&Load State...", "Ctrl+L",
     "Load a saved fight"},
    OfFiles({"mnuFileSave", Main<&MainForm::mnuFileSave>, Menu::File, 1, "&Save State...", "Ctrl+S",
             "Save this fight"}),
    OfFiles({"mnuFileExit", Main<&MainForm::mnuFileExit>, Menu::File, 2, "E&xit", "Ctrl+Q",
             "Close the tracker"}),

    {"mnuTReroll", Main<&MainForm::mnuTReroll>, Menu::Turn, 0, "&Reroll", "Ctrl+R",
     "Roll everybody's initiative and begin a combat turn", "Reroll", "Reroll"},
    {"mnuTReset", Main<&MainForm::mnuTReset>, Menu::Turn, 0, "Reset to &top", "Ctrl+T",
     "Begin a combat turn with the initiative as it is", "Reset", "Reset"},
    {"mnuTPrev", Main<&MainForm::mnuTPrev>, Menu::Turn, 1, "&Previous", "F7",
     "Step back to look at earlier actions of this combat turn", "Prev", "Prev"},
    {"mnuTNext", Main<&MainForm::mnuTNext>, Menu::Turn, 1, "&Next", "F8",
     "Step on to the next action", "Next", "Next"},
    {"mnuTClear", Main<&MainForm::mnuTClear>, Menu::Turn, 2, "&Clear All Events", "Ctrl+E",
     "Cancel all pending grenades and rockets", "ClearFlag", "Clear flag"},

    {"mnuPDelay", Main<&MainForm::mnuPDelay>, Menu::Combatant, 0, "Toggle &Delay", "Ctrl+D",
     "Delay this combatant's action, or let it act now", "Delay", "Delay", true},
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

    OfFiles({"mnuViewOptions", Main<&MainForm::mnuViewOptions>, Menu::View, 0, "&Options...",
             "Ctrl+,", "Choose the directories and switches"}),
    Looking({"mnuViewGM", Main<&MainForm::mnuViewGM>, Menu::View, 1, "&Game Master", "Ctrl+J",
             "Show the game master's list of notes"}),
    Looking({"mnuViewLog", Main<&MainForm::mnuViewLog>, Menu::View, 1, "&Log", "Ctrl+Shift+J",
             "Show the log of this and earlier sessions"}),
    Looking({"mnuViewReference", Main<&MainForm::mnuViewReference>, Menu::View, 1, "Re&ference",
             "Ctrl+F", "Look up an entry of the reference file"}),
    Looking({"mnuViewInfo", Main<&MainForm::mnuViewInfo>, Menu::View, 1, "&Item Information",
             "Ctrl+Shift+I", "Show all details of the selected item"}),
    Looking({"ShowRoller", Main<&MainForm::ShowRoller>, Menu::View, 1, "Dice &Roller", "F12",
             "Show the dice roller"}),
    Looking({"mnuViewStatusBar", Main<&MainForm::mnuViewStatusBar>, Menu::View, 1, "&Status Bar",
             "Ctrl+/", "Show or hide the status bar", "", "", true}),
    Looking({"mnuViewDark", Main<&MainForm::mnuViewDark>, Menu::View, 1, "&Dark Colours",
             "Ctrl+Shift+D", "Light or dark colours, until the program closes", "", "", true}),
    Looking({"mnuHelpContents", [](Session& s, const Act& a) { s.main.help.Form_Load(a.text); },
             Menu::Help, 0, "&Help", "F1", "How a combat turn runs, and all commands and keys"}),
    Looking({"mnuHelpAbout", Main<&MainForm::mnuHelpAbout>, Menu::Help, 1, "&About NGtracker",
             "Shift+F1", "Which version this is, and what it is built on"}),

    Looking({"Form_Load", Main<&MainForm::Form_Load>}),
    OfFiles({"Form_Unload", Main<&MainForm::Form_Unload>}),
    Looking({"MainLeft", KeepPlace<&WindowLayout::MainLeft>}),
    Looking({"MainTop", KeepPlace<&WindowLayout::MainTop>}),
    Looking({"MainWidth", KeepPlace<&WindowLayout::MainWidth>}),
    Looking({"MainHeight", KeepPlace<&WindowLayout::MainHeight>}),
    Looking({"Form_LeftOut", Main<&MainForm::Form_LeftOut>}),
    Step("open files", {"Form_Drop", MainText<&MainForm::Form_Drop>}),
    Looking({"GridX_Click", MainIndexed<&MainForm::GridX_Click>}),
    Typing("typed into the grid", {"GridX_KeyPress", MainIndexed<&MainForm::GridX_KeyPress>}),
    Step("typing taken back", {"GridX_Restore", Main<&MainForm::GridX_Restore>}),
    Looking({"GridX_Roll", [](Session& s, const Act& a) { s.main.GridX_Cell(a.index, 1); }}),
    Looking({"GridX_PM", [](Session& s, const Act& a) { s.main.GridX_Cell(a.index, 2); }}),
    Looking({"GridX_Name", [](Session& s, const Act& a) { s.main.GridX_Cell(a.index, 0); }}),

    Looking({"lblLogFailure", [](Session& s, const Act&) { s.main.gmLog.FailureSeen(); }}),
    Looking({"lblJournal", [](Session& s, const Act&) { s.main.lblJournal.clear(); }}),

    Step("initiative mode", {"optInitMode", MainIndexed<&MainForm::optInitMode>}),
    Typing("roll", {"txtRRSLT", MainText<&MainForm::txtRRSLT_Change>}),
    Typing("initiative dice",
           {"txtInit",
            [](Session& s,
               const Act& a) { s.main.txtInit_Change(static_cast<int>(Element(a)), a.text); }}),
    Typing("reaction",
           {"txtReac",
            [](Session& s,
               const Act& a) { s.main.txtReac_Change(static_cast<int>(Element(a)), a.text); }}),
    Looking({"tabMain", MainIndexed<&MainForm::tabMain_Click>}),

    Step("{track} light wound", {"cmdLDam", Wound<1>}),
    Step("{track} moderate wound", {"cmdMDam", Wound<3>}),
    Step("{track} serious wound", {"cmdSDam", Wound<6>}),
    Step("{track} deadly wound", {"cmdDDam", Wound<10>}),
    Step("{track} one box more", {"cmdIncrease", Wound<1>}),
    Step("{track} one box less", {"cmdReduce", Wound<-1>}),
    Step("{track} track cleared",
         {"cmdDamZero", [](Session& s, const Act& a) { s.main.cmdDamZero(TrackOf(a)); }}),
    Step("{hand} smartlink", {"chkSmL", ClickSight<Sight::Smartlink>}),
    Step("{hand} laser sight", {"chkLaserSight", ClickSight<Sight::Laser>}),
    Step("{hand} smart goggles", {"chkSmtGoggles", ClickSight<Sight::Goggles>}),
    Step("range", {"optRangeSel", ChooseRange}),
    Step("{hand} weapon, 1 round", {"cmdShots1", Fire<1>}),
    Step("{hand} weapon, 3 rounds", {"cmdShots3", Fire<3>}),
    Step("{hand} weapon, full auto",
         {"cmdShotsFA", [](Session& s, const Act& a) { s.main.FullAuto(WeaponOf(a)); }}),
    Step("{hand} weapon reloaded",
         {"cmdShotsZ", [](Session& s, const Act& a) { s.main.firing.Reload(WeaponOf(a)); }}),
    Step("{hand} weapon put away",
         {"cmdDisarm", [](Session& s, const Act& a) { s.main.cmdDisarm(WeaponOf(a)); }}),
    Step("primary weapon",
         {"cmdSetPrim", [](Session& s, const Act&) { s.main.cmdSetWeapon(Weapon::Primary); }}),
    Step("secondary weapon",
         {"cmdSetSecond", [](Session& s, const Act&) { s.main.cmdSetWeapon(Weapon::Secondary); }}),
    Step("primary firing skill", {"cmdSkillPrimary", ChooseSkill<SkillUse::Primary>}),
    Step("secondary firing skill", {"cmdSkillSecondary", ChooseSkill<SkillUse::Secondary>}),
    Step("unarmed skill", {"cmdMeleeSkill", ChooseSkill<SkillUse::Unarmed>}),
    Step("unarmed test",
         {"cmdUnarmed", [](Session& s, const Act&) { s.main.skillTests.Unarmed(); }}),
    Step("body test", {"cmdBody", [](Session& s, const Act&) { s.main.skillTests.BodyTest(); }}),
    Looking({"cmdInfoWeapon", Inform<SheetList::Weapon>}),
    Looking({"cmdInfoArmor", Inform<SheetList::Armor>}),
    Looking({"cmdInfoGear", Inform<SheetList::Gear>}),
    Looking({"lstWeapon_Select", Mark<SheetList::Weapon>}),
    Looking({"lstArmor_Select", Mark<SheetList::Armor>}),
    Looking({"lstGear_Select", Mark<SheetList::Gear>}),
    Looking({"lstActive_Select", Mark<SheetList::Active>}),
    Looking({"lstOther_Select", Mark<SheetList::Other>}),
    Looking({"lstMagic_Select", Mark<SheetList::Magic>}),
    Looking({"lstEdges_Select", Mark<SheetList::Edges>}),
    Looking({"lstAugments_Select", Mark<SheetList::Augments>}),
    Looking({"lstContacts_Select", Mark<SheetList::Contacts>}),
    Looking({"lstRace_Select", Mark<SheetList::Race>}),

    Step("combat pool, a die more",
         {"cmdCPplus", [](Session& s, const Act&) { s.main.ChangeCombatPool(IncPool); }}),
    Step("combat pool, a die less",
         {"cmdCPnegative", [](Session& s, const Act&) { s.main.ChangeCombatPool(DecPool); }}),
    Step("spell pool, a die more", {"cmdSPplus", Pool<&PoolPanel::txtSP, IncPool>}),
    Step("spell pool, a die less", {"cmdSPnegative", Pool<&PoolPanel::txtSP, DecPool>}),
    Step("a die set aside", {"cmdSDplus", Main<&MainForm::cmdSDplus>}),
    Step("a die taken back", {"cmdSDnegative", Main<&MainForm::cmdSDnegative>}),
    // The plus button of the astral pool bears another name than its box; both names are kept.
    Step("astral pool, a die more", {"cmdADplus", Pool<&PoolPanel::txtAS, IncPool>}),
    Step("astral pool, a die less", {"cmdASnegative", Pool<&PoolPanel::txtAS, DecPool>}),
    Step("karma pool, a die more", {"cmdKPplus", Pool<&PoolPanel::txtKP, IncPool>}),
    Step("karma pool, a die less", {"cmdKPnegative", Pool<&PoolPanel::txtKP, DecPool>}),

    Step("worn armour", {"lstArmor_Check", MainIndexed<&MainForm::lstArmor_Check>}),
    Step("carried weapons", {"lstWeapon_Check", MainIndexed<&MainForm::lstWeapon_Check>}),
    Step("carried gear", {"lstGear_Check", MainIndexed<&MainForm::lstGear_Check>}),
    Step("note loaded", {"cmdNoteLoad", Main<&MainForm::cmdNoteLoad>}),
    OfFiles({"cmdNoteSave", Main<&MainForm::cmdNoteSave>}),
    Typing("note file", {"txtNoteFileName", MainText<&MainForm::txtNoteFileName_Change>}),
    Typing("note", {"txtNotes", MainText<&MainForm::txtNotes_Change>}),

    Looking({"ngdr.Form_Load", LoadRoller}),
    Step("new test", {"ngdr.tabTest", OpenTestPage}),
    Step("test rolled", {"ngdr.cmdRoll", [](Session& s, const Act&) { s.main.ngdr.cmdRoll(); }}),
    Step("dice of the test", {"ngdr.cmdDicePlusMinus", Roller<&DiceRoller::cmdDicePlusMinus>}),
    Step("pool dice of the test", {"ngdr.cmdCPplusMinus", Roller<&DiceRoller::cmdCPplusMinus>}),
    Step("test modifiers cleared",
         {"ngdr.cmdZeroAll", [](Session& s, const Act&) { s.main.ngdr.cmdZeroAll(); }}),
    Step("visibility", {"ngdr.cmbVisability", Roller<&DiceRoller::cmbVisability_Click>}),
    Step("visibility", {"ngdr.cmbVisability2", Roller<&DiceRoller::cmbVisability2_Click>}),
    Step("attacker movement", {"ngdr.cmbAttackerMove", Roller<&DiceRoller::cmbAttackerMove_Click>}),
    Typing("test modifier",
           {"ngdr.txtRVar",
            [](Session& s, const Act& a) { s.main.ngdr.txtRVar_Change(a.index, a.text); }}),
    Step("test modifier cleared", {"ngdr.txtRVar_Clear", Roller<&DiceRoller::ClearBox>}),
    Typing("dice of the test", {"ngdr.txtNumDice", RollerBox<&DiceRoller::txtNumDice_Change>}),
    Typing("target number", {"ngdr.txtTargetNum", RollerBox<&DiceRoller::txtTargetNum_Change>}),
    Typing("pool dice of the test", {"ngdr.txtCPx", RollerBox<&DiceRoller::txtCPx_Change>}),
    Typing("base number",
           {"ngdr.txtRangeTargetNumber", RollerBox<&DiceRoller::txtRangeTargetNumber_Change>}),
    Typing("base number", {"ngdr.txtMeleeNumber", RollerBox<&DiceRoller::txtMeleeNumber_Change>}),
    Typing("last successes",
           {"ngdr.txtLastSuccesses",
            [](Session& s, const Act& a) { s.main.ngdr.txtLastSuccesses = a.text; }}),
    Looking({"ngdr.Hide", [](Session& s, const Act&) { s.main.ngdr.visible = false; }}),
    Step("game master's note", {"frmGM.cmdAddNote", Main<&MainForm::cmdAddNote>}),
    Looking({"frmGM.cmdViewLog", Main<&MainForm::mnuViewLog>}),
    Looking({"frmGM.Close", [](Session& s, const Act&) { s.main.frmGMOpen = false; }}),
    Looking({"frmDisplay.cmdClose", [](Session& s, const Act&) { s.main.logViewer.cmdClose(); }}),
    Looking({"frmReference.txtFilter",
             [](Session& s, const Act& a) { s.main.reference.txtFilter_Change(a.text); }}),
    Looking({"frmReference.lstNames_Select",
             [](Session& s, const Act& a) { s.main.reference.lstNames_Select(a.index); }}),
    Looking({"frmReference.Close", [](Session& s, const Act&) { s.main.reference.open = false; }}),
    Looking({"frmHelp.txtFilter",
             [](Session& s, const Act& a) { s.main.help.txtFilter_Change(a.text); }}),
    Looking({"frmHelp.lstTopics_Select",
             [](Session& s, const Act& a) { s.main.help.lstTopics_Select(a.index); }}),
    Looking({"frmHelp.Close", [](Session& s, const Act&) { s.main.help.open = false; }}),

    Looking({"frmInfo.Close", [](Session& s, const Act&) { s.main.itemInfo.open = false; }}),

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

std::string PlainWords(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    if (c != '&' && c != '.') plain += c;
  }
  return plain;
}

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
    static constexpr Command kCaption = Step("test modifier", {"ngdr.Caption", ClickCaption});
    for (const Caption& caption : Captions()) {
      map.emplace(std::string(kRollerPrefix) + caption.control, &kCaption);
    }
    return map;
  }();
  const auto found = byName.find(name);
  return found == byName.end() ? nullptr : found->second;
}

}  // namespace ng
