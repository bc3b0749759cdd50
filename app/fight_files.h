#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tracker/fight/fight.h"

namespace ng {

class MainForm;
struct Environment;

/// What the disk holds of the fight. It is outside the fight and not taken back with it.
struct OnDisk {
  /// As it was saved or loaded last.
  Fight fight;
  /// The state file, empty before the first.
  std::string path;
};

/// The files of the main window's File menu and notes page: characters, states and notes.
class FightFiles {
 public:
  FightFiles(MainForm& form, Environment& environment) : form_(form), environment_(environment) {}

  /// Imports character files in this order and displays each. One that cannot be read makes a
  /// nameless combatant, and the status bar names it. A runtime error ends the row; those before
  /// the one that failed stay.
  void ImportCharacters(const std::vector<std::string>& names);
  /// What was dropped on the window or handed over at the start: the state file first, which would
  /// lay itself over the characters, and then those in the order given. Refused for two state
  /// files, and when the state file is none; what is neither, and what cannot be told from
  /// other files by its name, is named in the status bar.
  void OpenFiles(const std::vector<std::string>& paths);

  /// Asks for a file and writes the fight to it. Returns false when the dialog was cancelled. The
  /// status bar names the combatants that the file's rules leave out.
  bool SaveState();
  /// Asks for a file and lays it over the fight.
  void LoadState();
  /// Lays a state file over the fight; each distinct character file is read once. Those that could
  /// not be read are told in the status bar by their combatants' names. Refused for a file that is
  /// no state file: nothing changes, and the result is false. Runtime errors name the key and the
  /// slot; what was read before stays and is shown.
  bool LoadState(const std::string& path);

  /// Whether the fight differs from what was saved or loaded last, apart from who is displayed and
  /// the open pages.
  bool Changed() const;
  const OnDisk& onDisk() const { return onDisk_; }
  void SetOnDisk(OnDisk onDisk) { onDisk_ = std::move(onDisk); }

  /// Fills the note box from its file, which is asked for when none is named. Cancelling that is an
  /// error and abandons the command.
  void LoadNote();
  /// Writes the note to its file, which is asked for when none is named; cancelling that changes
  /// nothing.
  void SaveNote();

 private:
  /// Whether the file could be read.
  bool ImportOne(const std::string& name);
  void ReadInto(const std::string& path);
  void NameNoteFile(const std::string& path);

  MainForm& form_;
  Environment& environment_;
  OnDisk onDisk_;
};

}  // namespace ng
