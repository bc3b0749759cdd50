#include "journal/desk.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <set>

#include "app/commands.h"
#include "fakes/test_desk.h"
#include "golden/player.h"
#include "golden/snapshot.h"

namespace ng {
namespace {

using Kind = Answer::Kind;

/// All that stands in the windows and in the fight, but for what undo leaves alone.
Snapshot Shown(const Desk& desk) {
  Snapshot snapshot = TakeSnapshot(desk.session());
  std::erase_if(snapshot, [](const auto& value) {
    const std::string& name = value.first;
    return name == "mnuViewStatusBar" || name == "mnuViewDark" || name == "statusBar" ||
           name == "lblJournal" || name.starts_with("mnuEdit") || name.starts_with("frmHistory");
  });
  return snapshot;
}

std::string Difference(const Snapshot& wanted, const Snapshot& got) {
  const std::vector<std::string> lines = Differences(wanted, got);
  return lines.empty() ? std::string() : lines.front();
}

/// Three combatants in their first combat turn.
void BeginFight(TestDesk& run) {
  run.Import({0, 5, 15});
  run.Do("mnuTReroll");
  run.Do("mnuTNext");
}

TEST(Desk, StepsGoBackAndForthByTheirNames) {
  TestMachine machine;
  TestDesk run(machine);
  Desk& desk = run.desk;
  EXPECT_FALSE(desk.steps().CanUndo());
  BeginFight(run);
  const std::string who = run.Main().header.lblName2;
  run.Do("GridX_Click", 2);  // a look is no step of its own
  const std::string other = run.Main().header.lblName2;
  run.Do("cmdMDam", 0);
  run.Do("tabMain", 1);
  for (const char* text : {"1", "12", "123"}) run.Do("txtNotes", 0, text);
  run.Do("cmdShots1");  // refused
  EXPECT_EQ(run.prompts.TakeLog().back(), "message \"Can only shoot on PC's turn!\"");

  const std::vector<std::string> names = {other + ", note", other + ", physical moderate wound",
                                          "Next", "Reroll", "Open"};
  std::vector<Snapshot> states;
  for (const std::string& name : names) {
    EXPECT_EQ(desk.steps().UndoName(), name);
    states.push_back(Shown(desk));
    desk.Undo();
    EXPECT_EQ(desk.steps().RedoName(), name);
  }
  EXPECT_FALSE(desk.steps().CanUndo());
  EXPECT_EQ(run.Main().GridX.RowCount(), 0);
  desk.Undo();
  for (auto state = states.rbegin(); state != states.rend(); ++state) {
    desk.Redo();
    EXPECT_EQ(Difference(*state, Shown(desk)), "");
  }
  EXPECT_FALSE(desk.steps().CanRedo());
  // A further step takes the place of those that were undone.
  desk.Undo();
  desk.Undo();
  run.Do("cmdLDam", 1);
  EXPECT_EQ(desk.steps().UndoName(), other + ", stun light wound");
  EXPECT_FALSE(desk.steps().CanRedo());
  EXPECT_EQ(run.prompts.TakeLog(), std::vector<std::string>());
}

TEST(Desk, WhatWasOnlyLookedAtAfterAnUndoIsReadAgain) {
  TestMachine machine;
  TestDesk run(machine);
  BeginFight(run);
  machine.files.Put("C:\\tracker\\ngtracker.txt", "an earlier evening\r\n");
  run.desk.Undo();
  run.Do("mnuViewLog");
  run.desk.Redo();
  run.Do("mnuViewLog");
  run.Do("cmdLDam");
  machine.journals.files = {{"killed.open", machine.journals.files.begin()->second}};
  TestDesk next(machine);
  next.desk.TakeUp("killed.open");
  EXPECT_EQ(next.prompts.TakeLog(), std::vector<std::string>());
  EXPECT_EQ(next.Main().damage.lblPDam, "1");
}

TEST(Desk, AJournalThatCannotBeOpenedCostsTheFightNothing) {
  TestMachine machine;
  TestDesk run(machine);
  BeginFight(run);
  const std::string name = run.desk.JournalName();
  machine.journals.files["other.open"] = machine.journals.files.at(name);
  machine.journals.held.insert("other.open");
  run.desk.TakeUp("other.open");
  EXPECT_EQ(run.prompts.TakeLog().size(), 2U);
  EXPECT_EQ(run.desk.JournalName(), name);
}

TEST(Desk, WhatABoxSaysWhileItAsksAndACancelAreNoSteps) {
  TestMachine machine;
  TestDesk run(machine);
  BeginFight(run);
  run.prompts.answers.push_back({Kind::Modal, {}, {{"frmLoader.cmdCancel"}}});
  run.Do("mnuFileOpen");
  run.prompts.answers.push_back({Kind::Input, "", {{"Form_LeftOut"}}});
  run.Do("mnuPMult");
  EXPECT_EQ(run.desk.steps().UndoName(), "Next");
  run.Reply(Kind::Input, "look out");
  run.Do("frmGM.cmdAddNote");
  EXPECT_EQ(run.desk.steps().UndoName(), "game master's note");
}

TEST(Desk, UndoTouchesNoFilesButSaysSoInTheLog) {
  TestMachine machine;
  TestDesk run(machine);
  BeginFight(run);
  run.Do("mnuPGrenade");
  run.Reply(Kind::File, "C:\\tracker\\a.ngt");
  run.Do("mnuFileSave");
  const std::string saved = machine.files.ReadWhole("C:\\tracker\\a.ngt");
  EXPECT_FALSE(run.Main().fightFiles.Changed());
  machine.files.failingWrite = 0;
  const auto log = [&] { return machine.files.ReadWhole("C:\\tracker\\ngtracker.txt"); };
  const std::string line = run.Main().gmLog.lstGMinfo().front();
  run.desk.Undo();
  EXPECT_EQ(machine.files.ReadWhole("C:\\tracker\\a.ngt"), saved);
  EXPECT_EQ(log(), line + "\r\nUndone: " + line + "\r\n");
  // The file on the disk is not the fight that is on the desk now.
  EXPECT_TRUE(run.Main().fightFiles.Changed());
  run.desk.Redo();
  EXPECT_EQ(log(), line + "\r\nUndone: " + line + "\r\nRedone: " + line + "\r\n");
  EXPECT_FALSE(run.Main().fightFiles.Changed());
}

TEST(Desk, TakesUpWhatAKillLeft) {
  TestMachine machine;
  Snapshot last;
  std::string undo;
  std::string name;
  {
    TestDesk run(machine);
    EXPECT_TRUE(machine.journals.files.empty());
    BeginFight(run);
    run.Reply(Kind::Input, "2");
    run.Do("mnuPMult");
    run.Do("cmdMDam", 1);
    run.Do("mnuTNext");
    run.Do("cmdSDam");
    run.desk.Undo();
    last = Shown(run.desk);
    run.Do("tabMain", 2);  // a look costs no redo, and is not what a kill would hurt
    undo = run.desk.steps().UndoName();
    name = machine.journals.List().front();
    EXPECT_GT(machine.journals.flushes, 0);
    // The program is killed: nothing is closed, and the system lets go of the file.
    machine.journals.files["killed.open"] = machine.journals.files.at(name);
    machine.journals.files["2026-11-21 20-00-00.open"] = machine.journals.files.at(name);
  }
  machine.journals.files.erase("killed.open");
  EXPECT_TRUE(machine.journals.files.count("2026-11-21 21-43-05.ngj") > 0);

  machine.clock.now = "2026-11-22 19:00:00";
  TestDesk next(machine, 7);
  const std::optional<KeptFight> unclosed = next.desk.Unclosed();
  ASSERT_TRUE(unclosed);
  EXPECT_EQ(unclosed->when, "2026-11-21 20:00");
  EXPECT_EQ(unclosed->summary, (FightSummary{5, 1, ""}));
  next.desk.TakeUp(unclosed->name);
  EXPECT_EQ(Difference(last, Shown(next.desk)), "");
  EXPECT_EQ(next.desk.steps().UndoName(), undo);
  EXPECT_TRUE(next.desk.steps().CanRedo());
  EXPECT_EQ(next.prompts.TakeLog(), std::vector<std::string>());
  EXPECT_FALSE(next.desk.Unclosed());
  // It goes on, and back to its beginning, under the name of this evening.
  next.Do("mnuTNext");
  EXPECT_EQ(next.desk.JournalName(), "2026-11-22 19-00-00.open");
  while (next.desk.steps().CanUndo()) next.desk.Undo();
  EXPECT_EQ(next.Main().GridX.RowCount(), 0);
  next.desk.Close();
  EXPECT_EQ(KeptFights(machine.journals).front().when, "2026-11-22 19:00");

  // What a program kept plays as a golden fight.
  std::ostringstream transcript;
  Play(machine.journals.files.at("2026-11-21 21-43-05.ngj"), transcript);
  EXPECT_NE(transcript.str().find("> cmdMDam 1\n"), std::string::npos);
}

TEST(Desk, ADamagedJournalGivesWhatIsWhole) {
  TestMachine machine;
  std::string whole;
  std::vector<Fight> fights;
  {
    TestDesk run(machine);
    BeginFight(run);
    whole = machine.journals.files.begin()->second;
    run.Do("cmdMDam", 0);
    fights.push_back(run.Main().fight);
    whole = machine.journals.files.begin()->second;
    run.Do("cmdLDam", 1);
    fights.push_back(run.Main().fight);
  }
  const std::string longer = machine.journals.files.begin()->second;
  machine.journals.files.clear();
  struct Case {
    std::string bytes;
    std::string notice;
    std::string message;
    int fight;
  };
  std::vector<Case> cases;
  for (std::size_t cut = whole.size() + 1; cut < longer.size(); ++cut) {
    cases.push_back({longer.substr(0, cut),
                     "The last act of this fight was not written to its end and is lost", "", 0});
  }
  cases.push_back({longer, "", "", 1});
  std::string turned = longer;
  turned[whole.size() - 3] = static_cast<char>(turned[whole.size() - 3] ^ 1);
  cases.push_back({turned,
                   "The journal of this fight is damaged; it is taken up as it was before the "
                   "damage",
                   "", -1});
  const std::string refused = "message \"This fight cannot be taken up.%0D%0A";
  cases.push_back({"", "", refused + "The journal is empty.\"", -2});
  cases.push_back({"[SystemState]\r\n", "", refused + "This is not a journal.\"", -2});
  cases.push_back({std::string(2000, '\0'), "", refused + "This is not a journal.\"", -2});
  cases.push_back({whole + Framed("cmdOfLater\n"), "",
                   "message \"This fight was kept by another version of the program and can be "
                   "followed up to combat turn 1 only.%0D%0AIt is not taken up, and its journal is "
                   "left as it is.\"",
                   -2});
  for (const Case& c : cases) {
    machine.journals.files = {{"2026-01-01 10-00-00.open", c.bytes}};
    TestDesk run(machine);
    const Fight before = run.Main().fight;
    run.desk.TakeUp("2026-01-01 10-00-00.open");
    EXPECT_EQ(run.Main().lblJournal, c.notice);
    const std::vector<std::string> log = run.prompts.TakeLog();
    EXPECT_EQ(log.empty() ? "" : log.back(), c.message);
    if (c.fight >= 0) {
      EXPECT_EQ(run.Main().fight, fights[static_cast<std::size_t>(c.fight)]);
      continue;
    }
    EXPECT_EQ(machine.journals.files.at("2026-01-01 10-00-00.open"), c.bytes);
    EXPECT_EQ(run.Main().fight == before, c.fight == -2);
  }
}

TEST(Desk, AJournalOfOtherRulesIsLeftAlone) {
  TestMachine machine;
  {
    TestDesk run(machine);
    BeginFight(run);
    run.Do("mnuTReset");
  }
  std::string& bytes = machine.journals.files.begin()->second;
  // The second combat turn came out otherwise then.
  const std::size_t digest = bytes.rfind("\n= ");
  const std::size_t record = bytes.rfind("#= ", digest);
  std::string body = bytes.substr(bytes.find('\n', record) + 1);
  body = body.substr(0, body.find("#= "));
  body[body.rfind("= ") + 2] = 'x';
  bytes = bytes.substr(0, record) + Framed(body);
  const std::string before = bytes;
  TestDesk run(machine);
  run.desk.TakeUp(machine.journals.files.begin()->first);
  EXPECT_EQ(run.prompts.TakeLog(),
            (std::vector<std::string>{
                "message \"This fight was kept by another version of the program and can be "
                "followed up to combat turn 1 only.%0D%0AIt is not taken up, and its journal is "
                "left as it is.\""}));
  EXPECT_EQ(run.Main().GridX.RowCount(), 0);
  EXPECT_EQ(machine.journals.files.begin()->second, before);
}

TEST(Desk, AFullDiskIsToldOnceAndTheFightGoesOn) {
  for (const int append : {1, 2, 4}) {
    TestMachine machine;
    TestDesk run(machine);
    machine.journals.failingAppend = append;
    BeginFight(run);
    run.Do("cmdLDam");
    EXPECT_EQ(run.Main().lblJournal,
              "The journal is not written, so undo ends with this run: Disk full");
    run.Do("lblJournal");
    run.Do("cmdLDam");
    EXPECT_EQ(run.Main().lblJournal, "");
    run.desk.Undo();
    EXPECT_EQ(run.Main().damage.lblPDam, "1");
    EXPECT_EQ(run.prompts.TakeLog(), (std::vector<std::string>{"modal frmLoader"}));
  }
}

TEST(Desk, TwentyJournalsAreKeptAndNoneThatIsOpen) {
  TestMachine machine;
  for (int i = 10; i < 35; ++i) {
    machine.journals.files["2026-10-" + std::to_string(i) + " 10-00-00.ngj"] = "x";
  }
  machine.journals.held.insert("2026-10-10 10-00-00.ngj");
  TestDesk run(machine);
  BeginFight(run);
  const std::vector<std::string> names = machine.journals.List();
  EXPECT_EQ(names.size(), JournalWriter::kKept);
  EXPECT_EQ(names[0], "2026-10-10 10-00-00.ngj");
  EXPECT_EQ(names[1], "2026-10-17 10-00-00.ngj");
}

TEST(Desk, ALongFightIsSmallInMemory) {
  TestMachine machine;
  TestDesk run(machine);
  BeginFight(run);
  for (int i = 0; i < 3000; ++i) run.Do(i % 2 == 0 ? "cmdIncrease" : "cmdReduce", i / 2 % 2);
  const std::size_t kept = run.desk.timeline().Bytes() + run.desk.steps().Bytes();
  EXPECT_LT(kept, 2 * machine.journals.files.begin()->second.size());
}

/// Does one act of any command at random, with answers to whatever it may ask.
class Monkey {
 public:
  Monkey(TestDesk& run, unsigned seed) : run_(run), random_(seed) {
    for (const Command& command : Commands()) {
      const std::string_view name = command.name;
      const bool modal = name.starts_with("frmLoader.") || name.starts_with("frmOptions.") ||
                         name.starts_with("frmSelSkillLevel.");
      if (command.effect == Effect::Desk || modal || name == "mnuFileExit") continue;
      if (name == "Form_Load" || name == "ngdr.Form_Load") continue;
      commands_.push_back(&command);
    }
  }

  void Act() {
    const Command& command = *commands_[Below(static_cast<int>(commands_.size()))];
    const char* const texts[] = {"3", "", "12", "x", "-2", "a longer text that somebody types in"};
    run_.prompts.answers.clear();
    run_.prompts.answers.push_back(AnswerTo(command.name));
    run_.desk.Do({command.name, Index(command.name), texts[Below(6)]});
    run_.prompts.answers.clear();
    run_.prompts.TakeLog();
  }

 private:
  std::size_t Below(int n) { return random_() % static_cast<unsigned>(n); }
  int Index(std::string_view name) {
    if (name == "GridX_KeyPress") return static_cast<int>("17-.\x08x\r9"[Below(8)]);
    return static_cast<int>(Below(4));
  }
  Answer AnswerTo(std::string_view name) {
    if (name == "mnuFileOpen") {
      const int row = static_cast<int>(Below(16));
      return {
          Kind::Modal, {}, {{"frmLoader.filesXML_Select", row, {}}, {"frmLoader.cmdLoad", 0, {}}}};
    }
    if (name == "mnuViewOptions") return {Kind::Modal, {}, {{"frmOptions.cmdCancel"}}};
    if (name.find("Skill") != std::string_view::npos) {
      return {Kind::Modal, {}, {{"frmSelSkillLevel.cmdSkillSelect", 1, {}}}};
    }
    if (name == "mnuHelpAbout") return {Kind::Modal, {}, {}};
    if (name.find("File") != std::string_view::npos ||
        name.find("Note") != std::string_view::npos) {
      return {Kind::File, "C:\\tracker\\" + std::to_string(Below(2)) + ".ngt", {}};
    }
    return {Kind::Input, std::to_string(Below(5)), {}};
  }

  TestDesk& run_;
  std::mt19937 random_;
  std::vector<const Command*> commands_;
};

#ifdef __SANITIZE_ADDRESS__
constexpr unsigned seeds = 8;  // All of them take minutes under the sanitizers.
#else
constexpr unsigned seeds = 30;
#endif

TEST(Desk, RandomActsAreUndoneAndRedoneExactly) {
  for (unsigned seed = 1; seed <= seeds; ++seed) {
    TestMachine machine;
    TestDesk run(machine, seed);
    BeginFight(run);
    Monkey monkey(run, seed);
    std::vector<Snapshot> states;
    std::vector<std::size_t> places;
    for (int act = 0; act < 12; ++act) {
      places.push_back(run.desk.timeline().Cursor());
      states.push_back(Shown(run.desk));
      monkey.Act();
    }
    places.push_back(run.desk.timeline().Cursor());
    states.push_back(Shown(run.desk));
    const auto check = [&] {
      const auto place = std::ranges::find(places, run.desk.timeline().Cursor());
      if (place == places.end()) return;
      const Snapshot& wanted = states[static_cast<std::size_t>(place - places.begin())];
      ASSERT_EQ(Difference(wanted, Shown(run.desk)), "") << "seed " << seed;
    };
    while (run.desk.steps().CanUndo()) {
      run.desk.Undo();
      check();
    }
    while (run.desk.steps().CanRedo()) {
      run.desk.Redo();
      check();
    }
    EXPECT_EQ(Difference(states.back(), Shown(run.desk)), "") << "seed " << seed;
  }
}

}  // namespace
}  // namespace ng
