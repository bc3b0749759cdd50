#pragma once

#include <string>

#include "app/session.h"
#include "fakes/fakes.h"

namespace ng {

/// The whole program on fakes, with the character directory "C:\chars" and the DATA directory
/// "C:\DATA".
struct TestProgram {
  FakeFiles files;
  ScriptedUniform uniform;
  ScriptedPrompts prompts;
  FakeUserSettings userSettings;
  Session session{{files,
                   uniform,
                   prompts,
                   userSettings,
                   {{}, "C:\\tracker"},
                   {"C:\\chars", "C:\\DATA", false, false}}};
  MainForm& main = session.main;
  Fight& fight = session.main.fight;

  TestProgram() {
    prompts.perform = [this](const Act& act) { session.Do(act); };
  }

  /// A combatant in the next slot and at the end of the order, with this initiative. It has no
  /// sheet; `CharacterData` only marks the slot as taken.
  PlayerRecord& Add(const std::string& name, Integer rolled = 0) {
    const Integer number = fight.CountPlayers() + 1;
    const Slot slot = Slot::From(number);
    PlayerRecord& record = fight.Players[slot];
    record.Name = name;
    record.RRSLT = rolled;
    record.CharacterData = CharacterIndex::From(number);
    fight.InitOrder[OrderPosition::From(number)] = slot;
    fight.Recount();
    main.sequencer.SortInitiative();
    return record;
  }

  /// The names of the combatants in their order.
  std::string Order() {
    std::string names;
    for (const OrderPosition p : PositionsUpTo(fight.CountPlayers())) {
      names += (p > 1 ? " " : "") + fight.Players[fight.InitOrder[p]].Name;
    }
    return names;
  }

  void Do(const std::string& control, int index = 0, const std::string& text = {}) {
    session.Do({control, index, text});
    prompts.Check();
    uniform.Check();
  }

  /// Picks these rows of the loader's file list.
  void Import(std::initializer_list<int> rows) {
    ScriptedPrompts::Answer answer{ScriptedPrompts::Answer::Kind::Modal, {}, {}};
    for (const int row : rows) answer.acts.push_back({"frmLoader.filesXML_Select", row, {}});
    answer.acts.push_back({"frmLoader.cmdLoad", 0, {}});
    prompts.answers.push_back(answer);
    Do("mnuFileOpen");
  }
};

}  // namespace ng
