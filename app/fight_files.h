#pragma once

#include <string>

#include "base/ports.h"
#include "import/character_import.h"
#include "tracker/state_file.h"

namespace ng {

class MainForm;
struct Environment;

/// The state and note files of the main window's File menu and notes page.
class FightFiles : private StateFileHost {
 public:
  FightFiles(MainForm& form, Environment& environment) : form_(form), environment_(environment) {}

  /// Asks for a file and writes the fight to it. Returns false when the dialog was cancelled. The
  /// status bar names the combatants that the file's rules leave out.
  bool SaveState();
  /// Asks for a file and lays it over the fight.
  void LoadState();
  /// Lays a state file over the fight; each distinct character file is read once. Runtime errors
  /// name the key and the slot; what was read before stays and is shown.
  void LoadState(const std::string& path);

  /// Whether the fight differs from what was saved or loaded last, looks and pages aside.
  bool Changed() const;

  /// Fills the note box from its file, which is asked for when none is named. Cancelling that is an
  /// error and abandons the command.
  void LoadNote();
  /// Writes the note to its file, which is asked for when none is named; cancelling that changes
  /// nothing.
  void SaveNote();

 private:
  void ImportCharacter(const std::string& fileName) override;
  std::string ShowNote(const std::string& noteFileName) override;
  void ReadInto(const std::string& path);
  void NameNoteFile(const std::string& path);

  MainForm& form_;
  Environment& environment_;
  /// The sheets that this load has imported so far.
  ImportedSheets sheets_;
  Fight saved_;
};

}  // namespace ng
