#include "app/fight_files.h"

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "base/text.h"
#include "fakes/test_program.h"

namespace ng {
namespace {

using Kind = ScriptedPrompts::Answer::Kind;

const std::string kState = "D:\\fights\\alley.ngt";

/// Three characters of two files, imported and fighting.
class FightFilesTest : public testing::Test {
 protected:
  FightFilesTest() {
    PutCharacters(program.files);
    program.Import({0, 1});
    program.Import({0});
    program.uniform.RepeatFace(3);
    program.Do("mnuTReroll");
    program.Do("mnuTNext");
    program.Do("mnuTNext");
    program.Do("cmdMDam", 0);
    program.Do("txtPainResistance", 0, "1");
    program.Do("txtRC", 1, "2");
  }

  static void PutCharacters(FakeFiles& files) {
    for (const char* name : {"Ash", "Birch"}) {
      files.Put("C:\\chars\\" + std::string(name) + ".ng3",
                "[General]\nCharName=" + std::string(name) +
                    "\n[System]\nFinalize=True\n[Attributes]\nBody=4|0|0|1\n"
                    "Initiative=1|0|0|0\nReaction=5|0|0|0\n[Gear]\nGear0=X:Rope~9|1|2.50\n");
    }
  }

  void Save(TestProgram& target) {
    target.prompts.answers.push_back({Kind::File, kState, {}});
    target.Do("mnuFileSave");
  }
  static void Load(TestProgram& target) {
    target.prompts.answers.push_back({Kind::File, kState, {}});
    target.Do("mnuFileLoad");
  }

  TestProgram program;
};

TEST_F(FightFilesTest, ASavedFightIsTakenUpByAnotherRun) {
  program.fight.TurnNum = 7;
  program.fight.Players[3].CurDamStun = 1;
  Save(program);
  EXPECT_EQ(program.main.statusMessage, "Fight saved");
  TestProgram later;
  PutCharacters(later.files);
  later.files.Put(kState, program.files.ReadWhole(kState));
  Load(later);
  EXPECT_EQ(later.prompts.log,
            std::vector<std::string>{"open \"Open State File\" \"State File (*.ngt)|*.ngt\""});
  EXPECT_EQ(later.main.statusMessage, "Fight of 3 combatants restored");
  EXPECT_EQ(later.fight.CountPlayers().Value(), 3);
  // The wounds, the panel's numbers and the rolls are there; the turn begins anew.
  const Slot wounded = program.fight.CurrentPCpointer;
  const PlayerRecord& record = later.fight.Players[wounded];
  EXPECT_EQ(record.CurDamPhysical.Value(), 3);
  EXPECT_EQ(record.PainResistance.Value(), 1);
  EXPECT_EQ(record.RCSec, "2");
  EXPECT_EQ(record.CondCode + later.fight.Players[3].CondCode, "0ML0");
  EXPECT_EQ(record.FRSLT.Value(), 6);
  EXPECT_EQ(later.fight.RoundCount.Value(), 1);
  EXPECT_EQ(later.fight.SeqNum.Value() + later.fight.TurnNum.Value(), 0);
  EXPECT_EQ(later.fight.LTurn, program.fight.LTurn);
  EXPECT_EQ(later.fight.CurrentPCpointer.Value(), 3);
  // Each character file was read once, and the two that came from one share a sheet.
  EXPECT_EQ(later.files.reads["c:\\chars\\ash.ng3"], 1);
  EXPECT_EQ(later.main.characters.Count().Value(), 2);
  EXPECT_EQ(later.main.sheet.lstGear.size(), 1U);
  EXPECT_FALSE(later.main.fightFiles.Changed());
}

TEST_F(FightFilesTest, WhatAPoolButtonChangedOutlastsEveryCommand) {
  program.prompts.answers = {{Kind::Input, "1", {}}, {Kind::File, kState, {}}};
  // Each shows somebody else, or shows or copies or writes the one who is displayed.
  const std::pair<const char*, const char*> commands[] = {
      {"mnuTNext", ""},    {"mnuTReroll", ""}, {"mnuTReset", ""},
      {"GridX_Click", ""}, {"mnuPMult", ""},   {"Form_Drop", "C:\\chars\\birch.ng3"},
      {"mnuFileSave", ""}};
  program.Do("mnuTPrev");
  int karma = 0;
  for (const auto& [command, text] : commands) {
    program.Do("GridX_Click", 1);
    const Slot slot = program.fight.CurrentPCpointer;
    PlayerRecord& record = program.fight.Players[slot];
    record.KP = ++karma;
    program.main.XFerPC(slot);
    program.Do("cmdKPplus");
    program.Do(command, 2, text);
    EXPECT_EQ(record.KP.Value(), ++karma) << command;
  }
  EXPECT_EQ(program.fight.Players[4].KP.Value(), 10);
}

TEST_F(FightFilesTest, AHundredOfOneFileComeBack) {
  program.Do("GridX_Click", 1);
  for (int i = 0; i < 5; ++i) {
    program.prompts.answers.push_back({Kind::Input, "21", {}});
    program.Do("mnuPMult");
  }
  Save(program);
  TestProgram later;
  PutCharacters(later.files);
  later.files.Put(kState, program.files.ReadWhole(kState));
  Load(later);
  EXPECT_EQ(later.fight.CountPlayers().Value(), 100);
  EXPECT_EQ(later.main.GridX.RowCount(), 100);
}

TEST_F(FightFilesTest, DroppedFilesAreOpenedTheStateFirst) {
  Save(program);
  TestProgram later;
  PutCharacters(later.files);
  later.files.Put(kState, program.files.ReadWhole(kState));
  const std::string birch = "C:\\chars\\Birch.NG3";
  later.Do("Form_Drop", 0, birch + "|" + kState + "|C:\\chars\\ash.ng3");
  // Three of the state, one of which is Birch, and then both characters in the order dropped.
  ASSERT_EQ(later.fight.CountPlayers().Value(), 5);
  EXPECT_EQ(later.fight.Players[4].Name, "Birch");
  EXPECT_EQ(later.fight.Players[5].Name, "Ash::2");
  EXPECT_EQ(later.fight.CurrentPCpointer.Value(), 5);
  EXPECT_EQ(later.main.statusMessage, "2 characters imported");

  later.Do("Form_Drop", 0, "D:\\map.png|C:\\chars\\gone.ngt");
  EXPECT_EQ(later.prompts.TakeLog().back(), "message \"File not found\"");
  EXPECT_FALSE(later.prompts.underWay);
  later.Do("Form_Drop", 0, kState + "|" + kState);
  EXPECT_EQ(later.prompts.TakeLog().back(),
            "message \"Only one state file can be opened at a time\"");
  later.Do("Form_Drop", 0, "D:\\map.png");
  EXPECT_EQ(later.main.statusMessage, "Not a character or state file: D:\\map.png");
  later.Do("Form_Drop", 0, "C:\\chars\\?sh.ng3");
  EXPECT_EQ(later.main.statusMessage, "Not told from other files by its name: ?sh.ng3");
  EXPECT_EQ(later.fight.CountPlayers().Value(), 5);
  // It is the file that the Open dialog finds, however its directory is written.
  later.session.environment.settings.NG3Dir = "C:\\chars\\";
  later.Do("Form_Drop", 0, birch);
  EXPECT_EQ(later.fight.Players[6].Filename, "C:\\chars\\\\Birch.NG3");
}

TEST_F(FightFilesTest, AFailureLeavesTheOldFileOrWhatWasRead) {
  Save(program);
  const std::string whole = program.files.ReadWhole(kState);
  program.Do("cmdDDam", 0);
  program.files.failingWrite = 1;
  program.prompts.TakeLog();
  Save(program);
  EXPECT_EQ(program.prompts.log.back(), "message \"Disk full\"");
  EXPECT_EQ(program.files.ReadWhole(kState), whole);
  EXPECT_TRUE(program.main.fightFiles.Changed());

  TestProgram later;
  PutCharacters(later.files);
  const std::size_t slot2 = whole.find("[Slot2]");
  later.files.Put(kState,
                  whole.substr(0, slot2) + Replaced(whole.substr(slot2), "\r\nKP=", "\r\nXX="));
  Load(later);
  EXPECT_EQ(later.prompts.log.back(), "message \"Type mismatch%0D%0AKP, slot 2\"");
  EXPECT_EQ(later.main.GridX.RowCount(), 2);
  Load(later);
  later.files.Put(kState, whole);
  later.prompts.answers.push_back({Kind::File, "D:\\gone.ngt", {}});
  later.Do("mnuFileLoad");
  EXPECT_EQ(later.prompts.log.back(), "message \"File not found\"");
}

TEST_F(FightFilesTest, WithoutItsCharacterFilesAFightKeepsItsPools) {
  program.files.Put("C:\\chars\\birch.ng3",
                    "[General]\nCharName=Birch\n[System]\nFinalize=True\n[Pools]\nCombat=5\n");
  program.Do("Form_Drop", 0, "C:\\chars\\birch.ng3");
  for (const int row : {1, 2, 3, 4}) {
    program.Do("GridX_Click", row);
    for (const char* button : {"cmdCPplus", "cmdSPplus", "cmdSPplus", "cmdADplus", "cmdSDplus"}) {
      program.Do(button);
    }
  }
  Save(program);
  TestProgram later;
  later.files.Put("C:\\chars\\birch.ng3", program.files.ReadWhole("C:\\chars\\birch.ng3"));
  later.files.Put(kState, program.files.ReadWhole(kState));
  Load(later);
  // Ash::1 is of the same file.
  EXPECT_EQ(later.main.statusMessage, "Restored without the character files of: Ash");
  later.Do("mnuTReset");
  const auto pools = [&](Slot slot) {
    const PlayerRecord& r = later.fight.Players[slot];
    return r.Name + " " + PlainText(r.CP) + PlainText(r.SP) + PlainText(r.SD) + PlainText(r.AS);
  };
  EXPECT_EQ(pools(1) + ", " + pools(3) + ", " + pools(4), "Ash 1111, Ash::1 1111, Birch::1 5010");

  later.Do("Form_Drop", 0, "C:\\chars\\gone.ng3|C:\\chars\\birch.ng3");
  EXPECT_EQ(later.main.statusMessage, "2 characters imported; could not be read: gone.ng3");
  EXPECT_EQ(later.fight.Players[5].Name, "(NF)");
}

TEST_F(FightFilesTest, ARandomFileIsNoStateFileAndChangesNothing) {
  const Fight before = program.fight;
  for (const char* text : {"",
                           "\x7F"
                           "ELF",
                           "[Slot1]\nName=Vex\n", "NumPlayers=1\n"}) {
    program.files.Put(kState, text);
    Load(program);
    EXPECT_EQ(program.prompts.TakeLog().back(), "message \"Not a state file%0D%0A" + kState + "\"");
  }
  // Nor is what was dropped with it imported into a fight that it was not meant for.
  program.Do("Form_Drop", 0, kState + "|C:\\chars\\ash.ng3");
  EXPECT_TRUE(program.fight == before);
  EXPECT_EQ(program.main.statusMessage, "Ready");
}

TEST_F(FightFilesTest, LineBreaksInNamesAndFiguresDoNotBreakTheFile) {
  program.files.Put("C:\\DATA\\gear.dat", "0-1|Melee|1|Damage\n");
  program.files.Put("C:\\chars\\ash.ng3",
                    "[General]\nCharName=A^`[Slot2]\n[System]\nFinalize=True\n"
                    "[Gear]\nGear0=Bow~1|6M^`KP=x\n");
  program.main.Form_Load();
  program.Do("mnuFileNew");
  program.Import({0, 1});
  program.Do("GridX_Click", program.fight.FindInOrder(1).Value());
  program.Do("lstWeapon_Select", 1);
  program.Do("cmdSetPrim");
  program.prompts.TakeLog();
  Save(program);
  program.Do("mnuFileNew");
  Load(program);
  EXPECT_EQ(program.main.statusMessage, "Fight of 2 combatants restored");
  EXPECT_EQ(program.fight.Players[1].Name, "A\r\n[Slot2]");
  EXPECT_EQ(program.fight.Players[1].PrimWeapStatDamage, "6M  KP=x");
  EXPECT_EQ(program.fight.Players[2].Name, "Birch");
}

TEST_F(FightFilesTest, ASaveNamesWhomItLeavesOut) {
  program.Do("GridX_Click", program.fight.FindInOrder(1).Value());
  program.Do("mnuPRemove");
  Save(program);
  EXPECT_EQ(program.main.statusMessage, "Fight saved. Not saved (beyond slot 2): Ash::1");
  program.Do("mnuFileNew");
  EXPECT_EQ(program.main.statusMessage, "1 combatant remains beyond an empty slot");
}

TEST_F(FightFilesTest, ClosingAsksForAChangedFightOnly) {
  const auto exit = [&](Kind kind) {
    program.prompts.answers.push_back({kind, kState, {}});
    program.Do("mnuFileExit");
    return program.main.closing;
  };
  EXPECT_FALSE(exit(Kind::Cancel));
  program.prompts.answers.push_back({Kind::Save, {}, {}});
  EXPECT_FALSE(exit(Kind::Cancel));  // the file dialog was cancelled
  Save(program);
  program.Do("GridX_Click", 1);
  program.Do("tabMain", 2);
  EXPECT_FALSE(program.main.fightFiles.Changed());  // looks are no changes
  program.Do("cmdReduce", 0);
  program.Do("cmdIncrease", 0);
  program.Do("cmdIncrease", 1);
  EXPECT_TRUE(exit(Kind::Discard));
  program.main.closing = false;
  Save(program);
  program.Do("cmdKPplus");  // stands on the sheet only, until the sheet is stored
  EXPECT_FALSE(exit(Kind::Cancel));
  Save(program);
  program.Do("mnuFileExit");
  EXPECT_TRUE(program.main.closing);
}

TEST_F(FightFilesTest, RecoilIsNoChangeAndADialogMayNameNoFile) {
  program.Do("mnuTReset");
  program.Do("mnuTNext");
  program.fight.Players[program.fight.CurrentPCpointer].PrimWeapStatAmmo = "30";
  program.Do("cmdShots1");
  program.Do("GridX_Click", 2);
  const PlayerRecord& other = program.fight.Players[program.fight.CurrentPCpointer];
  for (const int hand : {0, 1}) program.Do("txtTBTT", hand, "3");
  EXPECT_EQ(other.URCPrim + other.URCSec, "22");
  program.Do("GridX_Click", 1);
  program.Do("cmdShots3");
  Save(program);
  // The burst counts for the rounds of whoever is displayed next.
  program.Do("GridX_Click", 2);
  program.Do("GridX_Click", 1);
  EXPECT_EQ(other.URCPrim + other.URCSec, "33");
  EXPECT_FALSE(program.main.fightFiles.Changed());

  for (const char* command : {"mnuFileLoad", "mnuFileSave", "cmdNoteSave"}) {
    program.prompts.TakeLog();
    program.prompts.answers.push_back({Kind::File, "", {}});
    program.Do(command);
    EXPECT_EQ(program.prompts.log.size(), 1U) << command;
    EXPECT_EQ(program.main.statusMessage, "Ready") << command;
  }
}

TEST_F(FightFilesTest, AStateLaidOverAFightGoesOnCounting) {
  Save(program);
  Load(program);
  ASSERT_EQ(program.fight.CountPlayers().Value(), 6);
  const auto& players = program.fight.Players;
  EXPECT_EQ(players[4].Name + " " + players[5].Name + " " + players[6].Name,
            "Ash::2 Birch::1 Ash::3");
  // The next one is laid over what was on the sheet of a combatant that the file does not hold.
  program.Do("GridX_Click", program.fight.FindInOrder(6).Value());
  program.Do("cmdKPplus");
  Load(program);
  EXPECT_EQ(players[6].KP.Value(), 1);
}

TEST_F(FightFilesTest, NotesHaveAFileOfTheirOwnOrStayWhileTheProgramRuns) {
  program.Do("GridX_Click", 1);
  program.Do("txtNotes", 0, "talks\r\nfirst_");
  Save(program);
  EXPECT_EQ(program.main.statusMessage,
            "Fight saved. Notes not saved (no note file): " + program.main.header.lblName2);
  program.prompts.TakeLog();
  program.prompts.answers.push_back({Kind::Cancel, {}, {}});
  program.Do("cmdNoteSave");
  EXPECT_EQ(program.prompts.TakeLog(),
            std::vector<std::string>{"save \"Save Note File\" \"Text Files (*.txt)|*.txt\""});
  program.prompts.answers.push_back({Kind::Cancel, {}, {}});
  program.Do("cmdNoteLoad");
  EXPECT_EQ(program.prompts.TakeLog().back(), "message \"Cancel was selected.\"");
  program.prompts.answers.push_back({Kind::File, "D:\\a.txt", {}});
  program.Do("cmdNoteSave");
  EXPECT_EQ(program.files.ReadWhole("D:\\a.txt"), "talks^`first_\r\n");
  Save(program);
  EXPECT_EQ(program.main.statusMessage, "Fight saved");
  const Slot slot = program.fight.CurrentPCpointer;
  EXPECT_EQ(program.fight.Players[slot].NoteFileName, "D:\\a.txt");
  program.Do("txtNotes", 0, "other");
  program.Do("GridX_Click", 2);
  EXPECT_EQ(program.main.txtNotes, "");
  program.Do("GridX_Click", 1);
  EXPECT_EQ(program.main.txtNotes, "other");
  program.Do("cmdNoteLoad");
  EXPECT_EQ(program.main.txtNotes, "talks\r\nfirst ");
  // Without a file of its own a note takes the one that it is loaded from.
  program.Do("GridX_Click", 2);
  program.prompts.answers.push_back({Kind::File, "D:\\a.txt", {}});
  program.Do("cmdNoteLoad");
  EXPECT_EQ(program.main.txtNoteFileName, "D:\\a.txt");
}

TEST_F(FightFilesTest, TheLogGrowsAndItsFailureStaysUntilSeen) {
  program.prompts.answers.push_back({Kind::Input, "", {}});
  program.Do("frmGM.cmdAddNote");
  program.Do("mnuViewLog");
  EXPECT_EQ(program.main.logViewer.lstDisplay, std::vector<std::string>{""});
  for (const char* seen : {"lblLogFailure", "mnuViewGM", "mnuViewLog", "frmGM.cmdViewLog"}) {
    program.files.failingWrite = 1;
    program.Do("cmdShotsZ");
    program.Do("mnuTNext");
    EXPECT_EQ(program.main.gmLog.lblLogFailure(), "Log not written: Disk full") << seen;
    program.Do(seen);
    EXPECT_EQ(program.main.gmLog.lblLogFailure(), "") << seen;
  }
}

TEST_F(FightFilesTest, TheReferenceWindowFindsEntries) {
  program.files.Put("C:\\tracker\\info.dat",
                    "!x\nPistols|short arms|loud\nPoles|long\n\nBows|quiet\n");
  program.main.info.Load(program.files, {"C:\\tracker\\info.dat"});
  program.Do("mnuViewReference");
  EXPECT_EQ(program.main.reference.lstNames.size(), 3U);
  program.Do("frmReference.txtFilter", 0, "PO");
  EXPECT_EQ(program.main.reference.lstNames.size(), 1U);
  EXPECT_EQ(program.main.reference.txtEntry, "long\r\n");  // the first one listed
  program.Do("frmReference.txtFilter", 0, "");
  program.Do("frmReference.lstNames_Select", 2);
  EXPECT_EQ(program.main.reference.txtEntry, "quiet");
  program.Do("frmReference.txtFilter", 0, "Clubs");
  EXPECT_EQ(program.main.reference.txtEntry, "");
}

}  // namespace
}  // namespace ng
