#include <gtest/gtest.h>

#include "fakes/test_program.h"

namespace ng {
namespace {

/// A fight whose every step is checked against what the dice, told beforehand, must lead to.
class WholeFight : public testing::Test {
 protected:
  /// A combatant with so many initiative dice and this reaction.
  void Enter(const char* name, int dice, int reaction) {
    PlayerRecord& record = program.Add(name);
    record.CurInitAugmented = dice;
    record.CurReactAugmented = reaction;
  }

  /// The dice of one combatant's roll; the number drawn behind them decides nothing.
  void Dice(std::initializer_list<int> faces) {
    program.uniform.PushFaces(faces);
    program.uniform.Push(1, 1000);
  }

  /// The caption after a step, who is displayed, and who has the turn.
  std::string Next() {
    program.Do("mnuTNext");
    return program.main.sequencer.lblPhase() + " " + program.main.header.lblName2 + " " +
           LookOf(program.main.TurnBadge()).badge;
  }
  void Show(const char* name) {
    for (const OrderPosition p : PositionsUpTo(fight.CountPlayers())) {
      if (fight.Players[fight.InitOrder[p]].Name == name) {
        program.Do("GridX_Click", p.Value());
        return;
      }
    }
    FAIL() << name << " stands nowhere";
  }
  Integer Score(Slot slot) { return fight.Players[slot].FRSLT; }
  void Answer(const char* text) {
    program.prompts.answers.push_back({ScriptedPrompts::Answer::Kind::Input, text, {}});
  }

  TestProgram program;
  Fight& fight = program.fight;
};

TEST_F(WholeFight, ThreeCombatTurnsOfAlleyAmbush) {
  Enter("Vex", 3, 9);     // slot 1
  Enter("Ganger", 1, 4);  // slot 2
  Enter("Sable", 1, 5);   // slot 3
  program.session.environment.settings.CloneInit = true;
  Show("Ganger");
  Answer("3");
  program.Do("mnuPMult");
  EXPECT_EQ(program.Order(), "Vex Ganger Sable Ganger::1 Ganger::2 Ganger::3");

  // Turn 1. Vex 4+5+3+9 = 21, Ganger 6+4 = 10 and so all its copies, Sable 2+5 = 7.
  Dice({4, 5, 3});
  Dice({6});
  Dice({2});
  for (int copy = 0; copy < 3; ++copy) Dice({1});
  program.Do("mnuTReroll");
  // The exchange sort: every Ganger passes Sable, and Sable's leaps leave the ties in this order.
  EXPECT_EQ(program.Order(), "Vex Ganger Ganger::1 Ganger::2 Ganger::3 Sable");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Vex On turn");
  program.Do("mnuPDelay");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Ganger On turn");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Ganger::1 On turn");
  // Vex interrupts Ganger::1, shoots Ganger down, and Ganger::1 still has its action.
  Show("Vex");
  program.Do("mnuPDelay");
  EXPECT_EQ(program.main.TurnBadge(), TurnState::OnTurn);
  Show("Ganger");
  program.Do("cmdDDam", 0);
  EXPECT_EQ(Score(2).Value(), 0);
  EXPECT_EQ(program.Order(), "Vex Ganger::1 Ganger::2 Ganger::3 Sable Ganger");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Ganger::1 On turn");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Ganger::2 On turn");
  // A serious stun: 10 - 3 = 7 drops Ganger::2 to a tie with Sable, whose reaction is the better.
  program.Do("cmdSDam", 1);
  EXPECT_EQ(program.Order(), "Vex Ganger::1 Ganger::3 Sable Ganger::2 Ganger");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Ganger::3 On turn");
  program.Do("mnuPGrenade");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Sable On turn");
  // Pass 2 takes 10 off: 11 is left to Vex, nothing to the others; pass 3 leaves it 1.
  EXPECT_EQ(Next(), "NEW-Phase: 2 Vex On turn");
  EXPECT_EQ(Next(), "NEW-Phase: 3 Vex On turn");
  EXPECT_TRUE(program.prompts.TakeLog().size() == 1U);  // the question for the copies
  EXPECT_EQ(Next(), "End of turn! Vex On turn");
  EXPECT_EQ(Next(), "End of turn Vex On turn");

  // Turn 2. The fallen one goes; Sable's wound is light. Vex 1+1+1+9 = 12, the copies roll for
  // themselves, since their original is gone: 3+4 = 7, 2+4 = 6, 5+4-3 = 6, Sable 6+5-1 = 10.
  Show("Ganger");
  program.Do("mnuPRemove");
  Show("Sable");
  program.Do("cmdLDam", 0);
  EXPECT_EQ(program.Order(), "Vex Ganger::1 Ganger::3 Ganger::2 Sable");
  Dice({1, 1, 1});
  Dice({3});
  Dice({2});
  Dice({5});
  Dice({6});
  program.Do("mnuTReroll");
  EXPECT_EQ(fight.RoundCount.Value(), 2);
  // Ganger::3 holds slot 6 beyond the count of 5, where no score is worked out: its 10 of turn 1
  // still stands beside its new roll.
  EXPECT_EQ(fight.Players[6].RRSLT.Value(), 6);
  EXPECT_EQ(Score(6).Value(), 10);
  EXPECT_EQ(program.Order(), "Vex Sable Ganger::3 Ganger::1 Ganger::2");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Vex On turn");
  program.Do("mnuPRocket");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Sable On turn");
  program.prompts.TakeLog();
  // The grenade of turn 1 goes off as its thrower is passed.
  EXPECT_EQ(Next(), "NEW-Phase: 1 Ganger::3 On turn");
  EXPECT_EQ(program.prompts.TakeLog(),
            std::vector<std::string>{"message \"Ganger::3:Grenade toss/fired explodes.#1%0D%0A\""});
  EXPECT_EQ(Next(), "NEW-Phase: 1 Ganger::1 On turn");
  // Taken out, Ganger::1 is not done, and its score stands until the next sort: it is met again.
  program.Do("mnuPInactive");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Ganger::1 Inactive");
  EXPECT_EQ(Next(), "NEW-Phase: 1 Ganger::2 On turn");
  // Back to the beginning and forward again changes nothing but the picture.
  const Fight before = fight;
  for (int i = 0; i < 3; ++i) program.Do("mnuTPrev");
  EXPECT_EQ(program.main.sequencer.lblPhase(), "History-Phase: 1");
  for (int i = 0; i < 3; ++i) program.Do("mnuTNext");
  EXPECT_EQ(fight, before);
  // Beyond the count Ganger::3 stays done, though a new pass begins; its stale 10 would be spent.
  EXPECT_EQ(Next(), "NEW-Phase: 2 Vex On turn");
  EXPECT_TRUE(static_cast<bool>(fight.Players[6].TurnDone));
  EXPECT_EQ(Next(), "End of turn! Vex On turn");
  EXPECT_EQ(program.prompts.TakeLog(),
            std::vector<std::string>{"message \"Vex:Rocket explodes%0D%0A\""});

  // Turn 3. A copy fills the hole in slot 2 and everybody is within the count again.
  Show("Ganger::2");
  Answer("1");
  program.Do("mnuPMult");
  EXPECT_EQ(fight.Players[2].Name, "Ganger::2::1");
  program.Do("mnuTReset");
  EXPECT_EQ(Score(6).Value(), 6);
  EXPECT_EQ(Score(2).Value(), 6);  // wounded like its original: 5 + 4 rolled, less 3
  EXPECT_EQ(program.uniform.Left(), 0U);
}

}  // namespace
}  // namespace ng
