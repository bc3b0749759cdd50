#include "tracker/state_file.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "fakes/expect_error.h"
#include "fakes/fakes.h"

namespace ng {
namespace {

/// Imports as the program does: into the first free slot and at the end of the order.
class FakeHost : public StateFileHost {
 public:
  explicit FakeHost(Fight& fight) : fight_(fight) {}
  std::string failingImport = "none";
  bool noteMissing = false;

  bool ImportCharacter(const std::string& fileName) override {
    if (fileName == failingImport) ThrowSubscript();
    const Slot slot = fight_.FindFreeSlot();
    if (slot == 0) ThrowSubscript();
    fight_.Players[slot].Name = "imported";
    fight_.Players[slot].CharacterData = CharacterIndex::From(slot.Value());
    fight_.Recount();
    fight_.InitOrder[OrderPosition::From(fight_.NumPlayers)] = slot;
    return true;
  }
  std::string ShowNote(const std::string& noteFileName) override {
    if (noteMissing) throw RuntimeError(ErrorNumber::FileNotFound);
    return "text of " + noteFileName;
  }

 private:
  Fight& fight_;
};

/// Gives every number and text a value that no other field has; the flags alternate.
PlayerRecord FilledRecord(Slot slot) {
  PlayerRecord record;
  int number = 100 * slot.Value();
  for (const PlayerField& field : PlayerFields()) {
    ++number;
    const auto fill = [&](auto member) {
      if constexpr (std::is_same_v<decltype(member), std::string PlayerRecord::*>) {
        record.*member = field.name + std::string(" ") + std::to_string(slot.Value());
      } else if constexpr (std::is_same_v<decltype(member), Boolean PlayerRecord::*>) {
        record.*member = number % 2 == 0;
      } else if constexpr (std::is_same_v<decltype(member), CharacterIndex PlayerRecord::*>) {
        record.*member = CharacterIndex::From(slot.Value());
      } else {
        record.*member = number;
      }
    };
    std::visit(fill, field.member);
  }
  std::swap(record.CurDamStun, record.CurDamOver);  // as the written file has them
  return record;
}

/// Three combatants in their third combat turn.
Fight ThirdTurn() {
  Fight fight;
  for (const Slot slot : SlotsUpTo(3)) {
    fight.Players[slot] = FilledRecord(slot);
    fight.Players[slot].Delay = slot == 2;
    fight.Players[slot].SetGreen = slot == 1;
    fight.InitOrder[OrderPosition::From(slot.Value())] = slot;
  }
  PlayerRecord& first = fight.Players[1];
  first.Name = "Sable_Fen";
  first.CurInitMode = 100000;
  first.PrimHand = "Harrow 12 (SMG)";
  first.ArmorCPmod = -2;
  first.Race = "old ~ folk\tof\r\nthe `marsh_";
  first.LastWeight = "17.40";
  first.TurnDone = Boolean::FromRaw(1);
  fight.Players[2].NoteFileName.clear();
  int number = 10;
  for (const FightField& field : FightFields()) StoreNumber(fight, field.member, number++);
  fight.NumPlayers = 0;
  fight.RoundCount = 3;
  fight.TurnNum = 2;
  fight.InitPhase = -1;
  fight.TurnHistory[1] = {2, HistoryStep::kDelayed};
  fight.TurnHistory[2] = {HistoryStep::kEndOfTurn, -3};
  fight.GlobalEvents = "A rocket\r\n";
  return fight;
}

/// ThirdTurn as it comes back: all that the file keeps, and what it loses.
Fight Restored() {
  Fight fight = ThirdTurn();
  for (const Slot slot : SlotsUpTo(3)) {
    PlayerRecord& record = fight.Players[slot];
    record.Delay = slot == 1;
    for (Boolean* flag :
         {&record.inactive, &record.SetGreen, &record.Resumed, &record.FiredThisTurn}) {
      *flag = false;
    }
    for (Integer* lost : {&record.roundcnt, &record.RangeSelPrim, &record.RangeSelSec}) *lost = 0;
    for (std::string* lost : {&record.Events, &record.CondCode, &record.Notes}) lost->clear();
    record.LastWeight = slot == 1 ? "17.4" : "0";
    if (slot != 2) record.Notes = "text of " + record.NoteFileName;
  }
  fight.Players[1].Name = "Sable Fen";
  fight.Players[1].Race = "old \t folk\tof\r\nthe \nmarsh ";
  fight.Players[1].TurnDone = true;
  fight.NumPlayers = 3;
  fight.RoundCount = 0;
  fight.CurrentPCpointer = 0;
  fight.GlobalEvents.clear();
  return fight;
}

std::string GoldenFile() {
  FakeFiles files;
  files.Mount("C:", NG_SOURCE_DIR "/tests/golden");
  return files.ReadWhole("C:\\written_state.ngt");
}

/// Loads `text` and returns the text of the error that it ends with.
std::string Load(const std::string& text, Fight& fight, FakeHost& host) {
  return ErrorTextOf([&] { ReadStateFile(ProfileFile(text), fight, host); });
}

TEST(StateFile, IsWrittenByteForByte) { EXPECT_EQ(StateFileText(ThirdTurn()), GoldenFile()); }

TEST(StateFile, GivesBackAllButWhatItIsMeantToLose) {
  Fight fight;
  FakeHost host(fight);
  ASSERT_EQ(Load(GoldenFile(), fight, host), "");
  const Fight expected = Restored();
  for (const Slot slot : SlotsUpTo(3)) {
    for (const PlayerField& field : PlayerFields()) {
      EXPECT_EQ(FieldText(fight.Players[slot], field), FieldText(expected.Players[slot], field))
          << field.name << " of slot " << slot.Value();
    }
  }
  for (const FightField& field : FightFields()) {
    EXPECT_EQ(NumberIn(fight, field.member), NumberIn(expected, field.member)) << field.name;
  }
  EXPECT_TRUE(fight == expected);
}

TEST(StateFile, SlotsAreSavedByPosition) {
  Fight fight;
  for (const Slot slot : {Slot(1), Slot(2), Slot(4)}) {
    fight.Players[slot].Name = "in " + std::to_string(slot.Value());
  }
  const std::string text = StateFileText(fight);
  EXPECT_TRUE(Contains(text, "[Slot3]\r\nName=\r\nFilename=\r\n"));
  EXPECT_FALSE(Contains(text, "[Slot4]"));
  EXPECT_EQ(NamesLeftOut(fight), std::vector<std::string>{"in 4"});
  EXPECT_TRUE(NamesLeftOut(ThirdTurn()).empty());
}

TEST(StateFile, TheTurnListIsWrittenToTurnNumAndReadToTheFirstGap) {
  Fight fight;
  EXPECT_TRUE(Contains(StateFileText(fight), "grenadeCnt= 0 \r\nTurn0= 0 \r\n2Turn0= 0 \r\nCurGr"));
  fight.TurnNum = 100;
  const std::string full = StateFileText(fight);
  EXPECT_TRUE(Contains(full, "\r\n2Turn100= 0 \r\nCurGreen="));
  fight.TurnNum = 101;
  EXPECT_RUNTIME_ERROR(StateFileText(fight), "Subscript out of range");

  FakeHost host(fight);
  EXPECT_EQ(Load(full, fight, host), "");
  EXPECT_EQ(Load(Replaced(full, "CurGreen=", "Turn101=1\r\nCurGreen="), fight, host),
            "Subscript out of range\r\nTurn101");
  // An encoded blank is an entry; an empty one ends the list.
  fight.TurnHistory[3].Turn = 33;
  EXPECT_EQ(Load("[systemstate]\nTURN0=_7\nTurn1=_\n2turn1=8\nTurn2=\nTurn3=9", fight, host), "");
  EXPECT_EQ(fight.TurnHistory[0].Turn.Value(), 7);
  EXPECT_EQ(fight.TurnHistory[1].TwoTurn.Value(), 8);
  EXPECT_EQ(fight.TurnHistory[3].Turn.Value(), 33);
}

TEST(StateFile, AnErrorNamesItsPlaceAndLeavesWhatWasRead) {
  struct Case {
    const char* from;
    const char* to;
    const char* error;
  };
  for (const Case& c : std::vector<Case>{
           {"\r\nKP= 285 ", "", "Type mismatch\r\nKP, slot 2"},
           {"TwoGuns= 260 ", "TwoGuns=2.5", "Type mismatch\r\nTwoGuns, slot 2"},
           {"CurDamStun= 215 ", "CurDamStun=40000", "Overflow\r\nCurDamStun, slot 2"},
           {"LastWeight=LastWeight 2", "LastWeight=1e999", "Overflow\r\nLastWeight, slot 2"},
           {"Filename=Filename 2", "Filename=bad", "Subscript out of range\r\nFilename, slot 2"},
           {"NumPlayers= 3 ", "NumPlayers=32768", "Overflow\r\nNumPlayers"},
           {"lastGreen= 21 ", "lastGreen=99999", "Overflow\r\nlastGreen"}}) {
    Fight fight;
    FakeHost host(fight);
    host.failingImport = "bad";
    const std::string text = Replaced(GoldenFile(), c.from, c.to);
    ASSERT_TRUE(text != GoldenFile()) << c.from;
    EXPECT_EQ(Load(text, fight, host), c.error);
    const bool slotRead = !Contains(c.error, "NumPlayers");
    EXPECT_EQ(fight.Players[1].Name, slotRead ? "Sable Fen" : "");
    EXPECT_EQ(fight.CurGreen.Value(), Contains(c.error, "lastGreen") ? 20 : 0);
  }
  // A lost note file is met when all values of its slot are in.
  Fight fight;
  FakeHost host(fight);
  host.noteMissing = true;
  EXPECT_EQ(Load(GoldenFile(), fight, host), "File not found\r\nNoteFileName, slot 1");
  EXPECT_EQ(fight.Players[1].KP, FilledRecord(1).KP);
}

TEST(StateFile, MoreThanAHundredSlotsEndAtTheTable) {
  Fight fight = ThirdTurn();
  for (const Slot slot : IndexRange<Slot>(4, 100)) fight.Players[slot] = FilledRecord(slot);
  const std::string text = Replaced(StateFileText(fight), "NumPlayers= 100 ", "NumPlayers=101");
  Fight restored;
  FakeHost host(restored);
  EXPECT_EQ(Load(text, restored, host), "Subscript out of range\r\nFilename, slot 101");
  EXPECT_EQ(restored.Players[100].KP, FilledRecord(100).KP);
}

TEST(StateFile, HandWrittenFilesAreReadLeniently) {
  const std::vector<std::pair<const char*, bool>> flags = {
      {"1", true}, {" 1.0 ", true}, {"1x", true}, {"-1", false}, {"2", false}, {"True", false}};
  for (const auto& [flag, on] : flags) {
    Fight fight;
    FakeHost host(fight);
    std::string text = Replaced(GoldenFile(), "TurnDone=1", std::string("turndone=") + flag);
    text = Replaced(text, "RoundCount=", "RoundCnt=");
    text = Replaced(text, "CurrentPCpointer=", "CURPCPOINTER=");
    text = Replaced(text, "roundcnt=", "roundcnt=4 turns");
    EXPECT_EQ(Load(text, fight, host), "");
    EXPECT_EQ(static_cast<bool>(fight.Players[1].TurnDone), on) << flag;
    EXPECT_EQ(fight.Players[1].roundcnt.Value(), 4);
    EXPECT_EQ(fight.RoundCount.Value(), 3);
    EXPECT_EQ(fight.CurrentPCpointer.Value(), 14);
  }
}

TEST(StateFile, AFilledTableGetsTheImportsBehindAndTheValuesByPosition) {
  Fight fight;
  fight.Players[1].Name = "was here";
  fight.Players[1].CharacterData = 50;
  FakeHost host(fight);
  EXPECT_EQ(Load(Replaced(GoldenFile(), "NumPlayers= 3 ", "NumPlayers= 1 "), fight, host), "");
  EXPECT_EQ(fight.Players[1].Name, "Sable Fen");
  EXPECT_EQ(fight.Players[1].CharacterData.Value(), 50);
  EXPECT_EQ(fight.Players[2].Name, "imported");
  EXPECT_EQ(fight.NumPlayers.Value(), 2);
}

}  // namespace
}  // namespace ng
