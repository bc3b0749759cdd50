#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/session.h"
#include "base/seeded_uniform.h"
#include "fakes/fakes.h"

namespace ng {

/// The whole program on fakes with a full table: the sixteen sample characters and copies of the
/// last, 100 combatants, initiative rolled.
struct Crowd {
  FakeFiles files;
  SeededUniform uniform{20461};
  ScriptedPrompts prompts;
  FakeUserSettings userSettings;
  Session session{{files,
                   uniform,
                   prompts,
                   userSettings,
                   {{}, "C:\\tracker"},
                   {"C:\\chars", "C:\\DATA", false, false}}};

  /// std::runtime_error when the table does not come out full.
  Crowd();

  void Do(const std::string& control) { session.Do({control, 0, {}}); }

 private:
  void ImportSamples();
  void FillWithCopies();
};

/// A character file of at least 8 KB: a sample character with the gear of all the others as well.
std::string LargeCharacterFile();

/// The measure that reading is compared with: the lines of a text, each a string of its own.
std::vector<std::string> SplitIntoLines(std::string_view text);

}  // namespace ng
