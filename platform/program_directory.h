#pragma once

#include <filesystem>
#include <string>

namespace ng {

/// The program's own directory, where tracker.ini, the log and info.dat are: that of the
/// executable in a build tree or in a folder that somebody unpacked. An installed executable, known
/// by the `../share/ngtracker` beside its directory, is where users may not write; its own
/// directory is then `ngtracker` among the user's application data, made if it is missing. One that
/// cannot be made is returned all the same, and the first file written there fails.
std::string ProgramDirectory(const std::filesystem::path& executableDirectory);

}  // namespace ng
