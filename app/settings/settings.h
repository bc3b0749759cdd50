#pragma once

#include <string>

#include "app/settings/profile_file.h"
#include "base/integer.h"
#include "base/ports.h"

namespace ng {

/// The process-wide settings, read once at start from the section "[NGtracker]" of tracker.ini.
struct Settings {
  /// Where the character files are; the loader dialog and the options dialog change it.
  std::string NG3Dir;
  /// Forgekit's DATA directory with the reference tables.
  std::string DatDir;
  /// Copies of a combatant take their original's initiative roll.
  Boolean CloneInit;
  /// The dice roller is not shown.
  Boolean DisableNGDR;
};

/// The value of "NG3Dir" in tracker.ini, empty when there is none.
std::string ReadCharacterDirectory(ProfileReader& profile);

/// Reads the three settings that have a default. `NG3Dir` is left as it is: start-up reads it on
/// its own, since an empty one opens the options dialog first.
void ReadSettings(ProfileReader& profile, Settings& settings);

/// The text of tracker.ini. The switches are check box states, written in the print form.
std::string SettingsText(const Settings& settings);

/// Replaces tracker.ini in the program's own directory, even when the command line named another
/// file to read: that one is never written. Throws the file errors.
void WriteSettings(Files& files, const ProgramLocation& location, const Settings& settings);

}  // namespace ng
