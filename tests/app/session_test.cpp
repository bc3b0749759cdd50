#include "app/session.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <stdexcept>

#include "app/commands.h"
#include "fakes/test_program.h"
#include "golden/snapshot.h"

namespace ng {
namespace {

using Log = std::vector<std::string>;

struct FaultyUniform : Uniform {
  std::function<void()> fault = [] {};
  float Next() override {
    fault();
    return 0;
  }
};

struct FaultyPrompts : ScriptedPrompts {
  void Message(std::string_view text) override {
    ScriptedPrompts::Message(text);
    if (deaf) throw std::bad_alloc();
  }
  bool deaf = false;
};

TEST(Session, WhateverIsThrownIsToldAndTheProgramGoesOn) {
  const std::vector<std::pair<std::function<void()>, Log>> cases = {
      {[] { ThrowOverflow(); }, {"message \"Overflow\""}},
      {[] { throw std::bad_alloc(); },
       {"message \"The command could not be finished: std::bad_alloc\""}},
      {[] { throw 7; }, {"message \"The command could not be finished: unknown fault\""}},
      {[] {}, {"beep"}}};
  FakeFiles files;
  FaultyUniform uniform;
  FaultyPrompts prompts;
  FakeUserSettings userSettings;
  Session session{{files, uniform, prompts, userSettings, {{}, "C:\\tracker"}, {}}};
  EXPECT_TRUE(session.Do({"ngdr.txtNumDice", 0, "1"}));
  for (const auto& [fault, log] : cases) {
    uniform.fault = fault;
    EXPECT_EQ(session.Do({"ngdr.cmdRoll"}), log.front() == "beep");
    EXPECT_EQ(prompts.TakeLog(), log);
  }
  uniform.fault = cases[1].first;
  prompts.deaf = true;
  EXPECT_FALSE(session.Do({"ngdr.cmdRoll"}));
  EXPECT_THROW(session.Do({"mnuNowhere"}), std::invalid_argument);
}

TEST(Session, TheWindowComesBackToItsPlace) {
  constexpr std::pair<const char*, int WindowLayout::*> kEdges[] = {
      {"MainLeft", &WindowLayout::MainLeft},
      {"MainTop", &WindowLayout::MainTop},
      {"MainWidth", &WindowLayout::MainWidth},
      {"MainHeight", &WindowLayout::MainHeight}};
  TestProgram program;
  int twips = -300;
  for (const auto& [name, edge] : kEdges) program.Do(name, twips += 100);
  program.Do("Form_Unload");
  for (const auto& [name, edge] : kEdges) program.Do(name, 1);
  program.Do("Form_Load");
  twips = -300;
  for (const auto& [name, edge] : kEdges) EXPECT_EQ(program.main.layout.*edge, twips += 100);
}

TEST(Session, TheStatusBarCountsPassesToTheTenth) {
  TestProgram program;
  const auto pass = [&program](int number) {
    program.fight.PhaseCnt = number;
    for (const auto& [name, value] : TakeSnapshot(program.session)) {
      if (name == "lblPass") return value;
    }
    return std::string();
  };
  EXPECT_EQ(pass(10), "\"Pass 10\"");
  EXPECT_EQ(pass(11), "\"Turn over\"");
}

TEST(Session, EveryWindowBesideOpensAndCloses) {
  TestProgram program;
  MainForm& main = program.main;
  program.files.Put("C:\\tracker\\ngtracker.txt", "");
  const std::tuple<const char*, const char*, const bool&> windows[] = {
      {"mnuViewGM", "frmGM.Close", main.frmGMOpen},
      {"mnuViewLog", "frmDisplay.cmdClose", main.logViewer.open},
      {"mnuViewReference", "frmReference.Close", main.reference.open},
      {"mnuViewInfo", "frmInfo.Close", main.itemInfo.open},
      {"mnuHelpContents", "frmHelp.Close", main.help.open},
      {"ShowRoller", "ngdr.Hide", main.ngdr.visible}};
  for (const auto& [opening, closing, open] : windows) {
    for (const bool shown : {true, false}) {
      program.Do(shown ? opening : closing);
      EXPECT_EQ(open, shown) << opening;
    }
  }
  program.session.environment.settings.DisableNGDR = true;
  program.Do("ShowRoller");
  EXPECT_FALSE(main.ngdr.visible);
  EXPECT_EQ(main.statusMessage, "The dice roller is switched off in the options");
}

TEST(Session, WhatIsTypedIsShown) {
  TestProgram program;
  program.Add("Ash", 9);
  program.main.XFerPC(1);
  for (const Command& command : Commands()) {
    const std::string name = command.name;
    const bool box = name.starts_with("txt") || name.starts_with("ngdr.txt");
    if (!box || name.ends_with("_Clear")) continue;
    program.Do(name, 1, "7");
    const Snapshot shown = TakeSnapshot(program.session);
    EXPECT_TRUE(std::ranges::any_of(shown, [&](const auto& control) {
      return (control.first == name || control.first == name + " 1") && control.second == "\"7\"";
    })) << name;
  }
}

/// A state file may hold any number. Whatever the windows show, showing it ends nothing.
TEST(Session, EveryNumberCanBeShown) {
  for (const int number : {-32768, -1, 4, 100, 101, 500, 32767}) {
    TestProgram program;
    PlayerRecord& vex = program.Add("Vex", 12);
    Fight& fight = program.fight;
    fight.CurrentPCpointer = 1;
    vex.SkillWeapType = 1;
    vex.RangeSelPrim = number;
    program.Do("ngdr.tabTest");
    for (const FightField& field : FightFields()) {
      if (std::string_view(field.name) != "NumPlayers") StoreNumber(fight, field.member, number);
    }
    EXPECT_NO_THROW(TakeSnapshot(program.session)) << number;
    // Nothing is asked of the combatant displayed, and the pool follows whoever that is.
    program.Do("ngdr.Hide");
    EXPECT_EQ(program.prompts.TakeLog(), Log()) << number;
  }
}

}  // namespace
}  // namespace ng
