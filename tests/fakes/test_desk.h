#pragma once

#include <memory>
#include <string>
#include <utility>

#include "fakes/fake_journals.h"
#include "fakes/fakes.h"
#include "journal/desk.h"

namespace ng {

/// What lies outside a desk, and may outlive it as the machine outlives the program: the sample
/// campaign on a disk in memory, a clock, the journals.
struct TestMachine {
  FakeFiles files;
  FakeUserSettings userSettings;
  FakeClock clock;
  FakeJournals journals;

  TestMachine() {
    files.Mount("C:\\chars", NG_SOURCE_DIR "/sample/characters");
    files.Mount("C:\\DATA", NG_SOURCE_DIR "/sample/DATA");
    files.Put("C:\\tracker\\tracker.ini", "[NGtracker]\r\nNG3Dir=C:\\chars\r\nDatDir=C:\\DATA\r\n");
  }
};

/// One run of the program on such a machine, started.
struct TestDesk {
  explicit TestDesk(TestMachine& on, std::uint32_t seed = 20461)
      : machine(on),
        desk({{on.files, prompts, on.userSettings},
              on.clock,
              on.journals,
              {"test", seed, {{}, "C:\\tracker"}}}) {
    prompts.perform = [this](const Act& act) { desk.Do(act); };
    class : public StartupWindows {
      void ShowSplash() override {}
      void LoadMain() override {}
      void UnloadSplash() override {}
      void ShowMain() override {}
    } windows;
    desk.Start(windows);
  }

  void Do(const std::string& control, int index = 0, const std::string& text = {}) {
    desk.Do({control, index, text});
  }
  void Reply(Answer::Kind kind, std::string text = {}) {
    prompts.answers.push_back({kind, std::move(text), {}});
  }
  void Import(std::initializer_list<int> rows) {
    Answer answer{Answer::Kind::Modal, {}, {}};
    for (const int row : rows) answer.acts.push_back({"frmLoader.filesXML_Select", row, {}});
    answer.acts.push_back({"frmLoader.cmdLoad", 0, {}});
    prompts.answers.push_back(answer);
    Do("mnuFileOpen");
  }
  MainForm& Main() { return desk.session().main; }

  TestMachine& machine;
  ScriptedPrompts prompts;
  Desk desk;
};

}  // namespace ng
