#include <algorithm>
#include <gtest/gtest.h>

#include "base/text.h"
#include "fakes/test_desk.h"

namespace ng {
namespace {

using Kind = Answer::Kind;
using Lines = std::vector<std::string>;

/// The lines without their hours.
Lines Told(const HistoryForm& form) {
  Lines lines;
  for (const std::string& line : form.lstLines) lines.push_back(line.substr(line.find('\t') + 1));
  return lines;
}

TEST(History, TellsEachStepByWhatItChanged) {
  TestMachine machine;
  TestDesk run(machine);
  run.Import({15});
  run.Reply(Kind::Input, "1");
  run.Do("mnuPMult");
  run.Do("txtRRSLT", 0, "25");
  run.Do("mnuTReset");
  run.Do("mnuViewHistory");
  const HistoryForm& form = run.desk.session().history;
  run.Do("mnuTNext");
  run.Do("GridX_Click", 2);
  run.Do("cmdMDam", 0);
  for (const char* text : {"a", "ab", "abc"}) run.Do("txtNotes", 0, text);
  run.Do("cmdShots1");
  EXPECT_EQ(Told(form),
            (Lines{"\tOpen\tVex comes in", "Vex\tMultiply character (NPC)\tVex::1 comes in",
                   "Vex\troll\troll 0 to 25", "Combat turn 1, pass 1",
                   "\tReset to top\tVex: net 0 to 25", "Vex\tNext\t",
                   "Vex::1\tphysical moderate wound\tphysical 0 to 3, wound modifier 0 to 2, net 0 "
                   "to -2",
                   "Vex::1\tnote\tnote none to abc; \"Can only shoot on PC's turn!\""}));
}

TEST(History, FindsFiltersAndGoesBack) {
  TestMachine machine;
  TestDesk run(machine);
  run.Import({15, 5});
  run.Do("mnuTReroll");
  run.Do("mnuTNext");
  run.Do("GridX_Click", 1);
  const std::string first = run.Main().header.lblName2;
  run.Do("cmdLDam", 1);
  run.Do("GridX_Click", 2);
  const std::string second = run.Main().header.lblName2;
  run.Do("cmdSDam", 0);
  run.Do("mnuViewHistory");
  const HistoryForm& form = run.desk.session().history;
  run.Do("frmHistory.txtFind", 0, "SERIOUS");
  ASSERT_EQ(form.lstLines.size(), 2U);  // with its heading
  EXPECT_TRUE(Contains(form.lstLines[1], second + "\tphysical serious wound\tphysical 0 to 6"));
  run.Do("frmHistory.txtFind");
  const auto who = std::ranges::find(form.cmbWho, first) - form.cmbWho.begin();
  run.Do("frmHistory.cmbWho", static_cast<int>(who));
  for (const std::string& line : form.lstLines) {
    EXPECT_TRUE(Contains(line, first) || Contains(line, "Combat turn 1")) << line;
  }
  run.Do("frmHistory.cmbWho", 0);
  // Back to the first wound; the second is told as taken back, and Redo brings it again.
  const auto wound = std::ranges::find_if(
      form.lstLines, [](const std::string& line) { return Contains(line, "stun light wound"); });
  run.Do("frmHistory.lstLines_Select", static_cast<int>(wound - form.lstLines.begin()));
  run.Do("frmHistory.cmdBack");
  EXPECT_TRUE(Contains(form.lstLines.back(), "Taken back: physical serious wound"));
  EXPECT_TRUE(form.open);
  run.Do("mnuEditRedo");
  EXPECT_FALSE(Contains(form.lstLines.back(), "Taken back"));
  run.Do("frmHistory.cmdShow");
  EXPECT_EQ(run.Main().header.lblName2, first);
  run.Reply(Kind::File, "C:\\tracker\\history.txt");
  run.Do("frmHistory.cmdSave");
  EXPECT_TRUE(Contains(machine.files.ReadWhole("C:\\tracker\\history.txt"), "stun light wound"));
}

TEST(RecentFights, AreListedAndTakenUp) {
  TestMachine machine;
  {
    TestDesk run(machine);
    run.Import({15, 5});
    run.Do("mnuTReroll");
    run.Reply(Kind::File, "C:\\tracker\\docks.ngt");
    run.Do("mnuFileSave");
  }
  machine.clock.now = "2026-11-22 19:00:00";
  TestDesk run(machine);
  run.Import({0});
  const RecentForm& form = run.desk.session().recent;
  run.prompts.answers.push_back(
      {Kind::Modal, {}, {{"frmRecent.lstFights_Select", 0, {}}, {"frmRecent.cmdTakeUp", 0, {}}}});
  run.Do("mnuFileRecent");
  EXPECT_EQ(form.lstFights, (Lines{"2026-11-22 19:00\t1\t0\tnever saved\tthis fight",
                                   "2026-11-21 21:43\t2\t1\tdocks.ngt\t"}));
  EXPECT_EQ(run.Main().GridX.RowCount(), 1);  // the fight in the window is not taken up
  run.prompts.answers.push_back(
      {Kind::Modal, {}, {{"frmRecent.lstFights_Select", 1, {}}, {"frmRecent.cmdTakeUp", 0, {}}}});
  run.Do("mnuFileRecent");
  EXPECT_EQ(run.Main().GridX.RowCount(), 2);
  EXPECT_EQ(run.Main().fight.RoundCount.Value(), 1);
  EXPECT_EQ(machine.journals.List().size(), 2U);
}

TEST(Recovery, AsksOnceForTheFightThatWasNotClosed) {
  for (const bool yes : {true, false}) {
    TestMachine machine;
    std::string bytes;
    {
      TestDesk run(machine);
      run.Import({15, 5});
      run.Do("mnuTReroll");
      bytes = machine.journals.files.begin()->second;
    }
    machine.journals.files = {{"2026-11-20 20-15-00.open", bytes}};
    TestDesk run(machine);
    run.Reply(yes ? Kind::Save : Kind::Cancel);
    run.desk.OfferUnclosed();
    EXPECT_EQ(run.prompts.TakeLog(),
              (Lines{"take up? \"The fight of 20:15 with 2 combatants, combat turn 1, was not "
                     "closed. Take it up again?\""}));
    EXPECT_EQ(run.Main().GridX.RowCount(), yes ? 2 : 0);
    // After No it stays among the recent fights.
    EXPECT_EQ(run.desk.KeptFights().size(), 1U);
    EXPECT_FALSE(run.desk.Unclosed());
  }
}

}  // namespace
}  // namespace ng
