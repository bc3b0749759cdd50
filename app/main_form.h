#pragma once

#include <array>
#include <string>
#include <vector>

#include "app/act.h"
#include "app/fight_files.h"
#include "app/help_form.h"
#include "app/info_form.h"
#include "app/options_form.h"
#include "app/settings/settings.h"
#include "app/window_layout.h"
#include "base/ports.h"
#include "combat/damage_monitor.h"
#include "combat/firing.h"
#include "combat/pools.h"
#include "combat/skill_tests.h"
#include "combat/weapons.h"
#include "import/character_display.h"
#include "import/character_import.h"
#include "import/loader.h"
#include "import/reference_tables.h"
#include "notes/gm_log.h"
#include "notes/info_index.h"
#include "notes/log_viewer.h"
#include "notes/reference_form.h"
#include "roller/dice_roller.h"
#include "roller/skill_level.h"
#include "tracker/actions.h"
#include "tracker/fight/fight.h"
#include "tracker/grid.h"
#include "tracker/sequencer.h"
#include "tracker/turn_status.h"

namespace ng {

/// Everything from outside, and the settings that all forms share.
struct Environment {
  Files& files;
  Uniform& uniform;
  Prompts& prompts;
  UserSettings& userSettings;
  ProgramLocation location;
  Settings settings;
};

/// Who is displayed: names, race, initiative.
struct HeaderPanel {
  /// The name is shown in the header and on three of the pages.
  std::string lblName2;
  std::string lblNameX;
  std::string lblNameY;
  std::string lblNameZ;
  std::string lblRace2;
  std::string txtRRSLT;
  std::string lblFRSLT;
  /// Index 0 natural, 1 augmented.
  std::array<std::string, 2> txtInit;
  std::array<std::string, 2> txtReac;
  /// 0 physical, 1 astral.
  int optInitMode = 0;

  void Show(const PlayerRecord& record);
};

/// The main window without the toolkit: the fight, the panels that show the displayed combatant,
/// and the commands.
class MainForm : private SequencerHost, private DiceRoller::Weapons {
 public:
  MainForm(Environment& environment, LoaderForm& loader, OptionsForm& options);

  // The parts refer to one another.
  MainForm(const MainForm&) = delete;
  MainForm& operator=(const MainForm&) = delete;

  Fight fight;
  CharacterTable characters;
  GearTable gearTable;
  RangeTable rangeTable;
  SkillTable skillTable;
  InfoIndex info;

  GmLog gmLog;
  LogViewer logViewer;
  ReferenceForm reference;
  HelpForm help;
  /// The game master's window is open.
  bool frmGMOpen = false;
  InitiativeGrid GridX;
  Sequencer sequencer;
  Actions actions;
  HeaderPanel header;
  DamagePanel damage;
  WeaponPanel weapons;
  PoolPanel pools;
  SheetPanel sheet;
  DamageMonitor damageMonitor;
  DiceRoller ngdr;
  SkillLevelForm skillLevel;
  Firing firing;
  SkillTests skillTests;
  FightFiles fightFiles;
  /// Knows the lines selected in the lists, too.
  InfoForm itemInfo;
  std::string txtNotes;
  std::string txtNoteFileName;
  bool statusBarVisible = true;
  bool darkColours = false;
  /// The page that is open: combat, gear, person, notes.
  int tabMain = 0;
  std::string statusMessage = "Ready";
  /// What is wrong with the journal of the fight, until it has been seen; otherwise empty.
  std::string lblJournal;
  WindowLayout layout;
  bool closing = false;

  /// Restores the layout, sets up the grid, reads the info index and the reference tables. A table
  /// that cannot be read is reported and left as far as it was read.
  void Form_Load();
  /// Keeps the layout for the next start.
  void Form_Unload();

  /// Says that characters were typed or pasted that the program's files cannot hold.
  void Form_LeftOut() {
    statusMessage = "Left out: characters that cannot be saved (outside Windows-1252)";
  }
  /// Opens files dropped on the window or named at the start; the names are joined by "|".
  void Form_Drop(const std::string& names);

  // Menu and toolbar.
  /// Removes all combatants; nothing is asked.
  void mnuFileNew();
  void mnuFileOpen();
  void mnuFileSave() { fightFiles.SaveState(); }
  void mnuFileLoad() { fightFiles.LoadState(); }
  /// Closes the window; asks first when the fight has changed since it was saved.
  void mnuFileExit();
  void mnuTReroll();
  void mnuTReset();
  void mnuTNext();
  void mnuTPrev();
  void mnuTClear();
  void mnuPDelay();
  void mnuPInactive();
  void mnuPGrenade();
  void mnuPRocket();
  void mnuPMult();
  void mnuPRemove();
  void mnuViewOptions();
  void mnuViewGM();
  void mnuViewLog();
  void mnuViewReference() { reference.Form_Load(); }
  void mnuHelpAbout();
  /// Asks for a line and adds the answer, whatever it is, to the game master's list.
  void cmdAddNote();
  void mnuViewStatusBar() { statusBarVisible = !statusBarVisible; }
  void mnuViewDark() { darkColours = !darkColours; }

  // The grid.
  /// Displays the row's combatant; the turn stays where it is.
  void GridX_Click(int row);
  /// Moves the current cell without displaying anybody.
  void GridX_Cell(int row, int column);
  /// Edits the current cell. A whole number in the Roll column goes into `RRSLT` at once; any other
  /// text there is only shown until the grid is written again. The third column's text is kept
  /// until the next change of damage.
  void GridX_KeyPress(int code);
  /// Takes back what was typed into the current cell.
  void GridX_Restore();

  // The sheet. With nobody displayed these do nothing.
  void optInitMode(int option);
  void txtRRSLT_Change(const std::string& text);
  void txtInit_Change(int index, const std::string& text);
  void txtReac_Change(int index, const std::string& text);
  /// A control that is bound to a field was edited: takes it over into the record at once.
  /// Subscript out of range for an element that a control array does not have.
  void Bound_Change(const Act& act);
  /// Wounds of the damage panel: boxes added, or taken away when negative.
  void Damage(Track track, Integer boxes);
  void cmdDamZero(Track track);
  /// The pool buttons. The combat pool goes into the record at once, the others with the next
  /// synchronisation.
  void ChangeCombatPool(std::string (*change)(const std::string&));
  void ChangePool(std::string PoolPanel::*box, std::string (*change)(const std::string&));
  void cmdSDplus();
  void cmdSDnegative();
  /// Takes over the combat pool that a test left.
  void CP(Integer value);
  void optRangeSel(Weapon weapon, int range);
  void Sight_Click(Weapon weapon, Sight sight);
  /// Fires a weapon; says in the status bar when no firing skill is chosen, so that
  /// the range does not count.
  void Fire(Weapon weapon, int rounds);
  void FullAuto(Weapon weapon);
  void cmdDisarm(Weapon weapon);
  /// Takes the selected line of the weapon list into a hand.
  void cmdSetWeapon(Weapon weapon);
  /// Uses the selected line of the active skills.
  void ChooseSkill(SkillUse use);
  /// Shows every detail of the line that was selected last in any list.
  void mnuViewInfo() { itemInfo.Form_Load(); }
  /// Shows the dice roller; says in the status bar when the options have switched it off.
  void ShowRoller();
  void lstArmor_Check(int index);
  void lstWeapon_Check(int index);
  void lstGear_Check(int index);
  void txtNotes_Change(const std::string& text);
  void txtNoteFileName_Change(const std::string& text);
  void cmdNoteLoad() { fightFiles.LoadNote(); }
  void cmdNoteSave() { fightFiles.SaveNote(); }
  void tabMain_Click(int page);

  /// Displays a combatant, 0 for none.
  void XFerPC(Slot slot) override;
  /// The armour and weight derivation for the displayed combatant.
  void RecalcArmor();
  /// Shows the armour of the displayed record as RecalcArmor does, for one that was just derived.
  void ShowDerivedArmour();

  /// Stores what is on the sheet into the displayed record.
  void StoreSheet() { SyncSheet(); }
  /// Shows a fight that was read over this one, and this combatant of it.
  void ShowRestored(Slot slot);

  /// To be called when a command has run: the open test follows its combatant. Numbers that cannot
  /// be added up leave it as it is; their message came when the combatant was displayed.
  void FollowTest();

  // What the window shows beside the controls.
  TurnState TurnBadge() const { return TurnStateOf(fight, fight.CurrentPCpointer); }
  /// The grid row of the displayed combatant, 0 for none.
  int ShownRow() const;
  /// Rounds left in a weapon's magazine; empty for a weapon without one.
  std::string RoundsLeft(Weapon weapon) const;

 private:
  void SyncSheet() override;
  void RefreshPools() override;

  bool Displaying() const { return fight.CurrentPCpointer != 0; }
  PlayerRecord& Displayed() { return fight.Players[fight.CurrentPCpointer]; }
  /// What was typed into the current cell goes into its record.
  void TakeCell();
  template <typename Table>
  void Take(Table& table, Loaded<Table> loaded);
  /// Shows what an action may have changed of the displayed combatant.
  void ShowHeader() { header.Show(fight.Players[fight.CurrentPCpointer]); }
  template <class Panel>
  bool EditBound(Panel& panel, const Act& act);
  void UpdateWeapons();
  /// Takes over the combat pool that a test left of a combatant.
  void SpendPool(Slot slot, Integer left);
  bool WieldsInMelee(const PlayerRecord& combatant, Weapon weapon) const override;
  Integer WeaponModifier(const PlayerRecord& combatant, Weapon weapon) const override;
  void TellMissingSkill(Weapon weapon, int testsBefore);
  void ToggleCarried(std::vector<CarriedLine> CharacterEntry::*list, int index);

  Environment& environment_;
  LoaderForm& loader_;
  OptionsForm& options_;
};

}  // namespace ng
