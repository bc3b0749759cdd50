#include <gtest/gtest.h>

#include "app/commands.h"
#include "fakes/test_program.h"
#include "golden/snapshot.h"

namespace ng {
namespace {

using Kind = ScriptedPrompts::Answer::Kind;

class HostileNumbers : public testing::Test {
 protected:
  HostileNumbers() {
    program.files.Mount("C:\\chars", NG_SOURCE_DIR "/sample/characters");
    program.files.Mount("C:\\DATA", NG_SOURCE_DIR "/sample/DATA");
    program.main.Form_Load();
  }

  void Load(const std::string& state) {
    program.files.Put("C:\\bad.ngt", state);
    program.prompts.answers.push_back({Kind::File, "C:\\bad.ngt", {}});
    program.Do("mnuFileLoad");
    program.prompts.answers.clear();
  }

  std::string LastMessage() const { return program.prompts.log.back(); }

  TestProgram program;
};

TEST_F(HostileNumbers, OfASavedFightEndACommandAndNothingElse) {
  // Each counter that a rule uses as an index, far outside its table, with and without an error
  // behind it that ends the load half-way.
  for (const char* key : {"CurPCpointer", "SeqNum", "TurnNum", "lturn", "PhaseCnt", "RoundCnt",
                          "grenadeCnt", "CurGreen", "lastGreen", "InfoCnt", "Turn0", "2Turn0"}) {
    for (const char* number : {"-3000", "500", "32767", "-32768"}) {
      for (const char* broken : {"", "Turn1=99999\r\n"}) {
        Load(std::string("[SystemState]\r\nNumPlayers=0\r\nTurn0=0\r\n") + key + "=" + number +
             "\r\n" + broken);
        for (const Command& command : Commands()) {
          const bool turn = command.menu == Menu::Turn || command.menu == Menu::Combatant;
          if (!turn) continue;
          program.prompts.answers = {{Kind::Cancel, {}, {}}};
          program.Do(command.name);
          program.prompts.answers.clear();
        }
        ASSERT_FALSE(TakeSnapshot(program.session).empty());
        // The table is as usable as before.
        program.Do("Form_Drop", 0, "C:\\chars\\vex.ng3");
        program.Do("mnuTReset");
        program.Do("mnuTNext");
        EXPECT_EQ(program.main.header.lblName2, "Vex") << key << number << broken;
        program.Do("mnuPRemove");
      }
    }
  }
}

TEST_F(HostileNumbers, LeaveNothingHalfDone) {
  program.Do("Form_Drop", 0, "C:\\chars\\vex.ng3");
  PlayerRecord& vex = program.fight.Players[1];

  // A spell die set aside where no more fit stays in its pool.
  program.Do("txtSD", 0, "32767");
  program.Do("txtSP", 0, "5");
  program.Do("cmdSDplus");
  EXPECT_EQ(LastMessage(), "message \"Overflow\"");
  EXPECT_EQ(program.main.pools.txtSD + "/" + program.main.pools.txtSP, "32767/5");

  // A refused number of copies stores nothing of the sheet.
  program.Do("cmdKPplus");
  const PlayerRecord before = vex;
  program.prompts.answers = {{Kind::Input, "22", {}}};
  program.Do("mnuPMult");
  EXPECT_EQ(vex, before);

  // The wounds are shown though the score that follows from them has no room.
  program.Do("txtRRSLT", 0, "-32768");
  program.Do("cmdMDam", 0);
  EXPECT_EQ(LastMessage(), "message \"Overflow\"");
  EXPECT_EQ(program.main.damage.lblPhysical + program.main.damage.lblPDam, "Mod. Phys. Damage3");
  EXPECT_EQ(program.main.damage.lblDamMod, "DamMod:+0");

  // A removal whose sort ends in Overflow displays nobody.
  program.Do("Form_Drop", 0, "C:\\chars\\sable.ng3");
  program.Do("mnuPRemove");
  EXPECT_EQ(LastMessage(), "message \"Overflow\"");
  EXPECT_EQ(program.fight.CurrentPCpointer.Value(), 0);
  EXPECT_EQ(program.main.GridX.RowCount(), 1);
}

}  // namespace
}  // namespace ng
