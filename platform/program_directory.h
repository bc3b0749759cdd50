#pragma once

#include <filesystem>
#include <string>

namespace ng {

/// The program's own directory, where tracker.ini, the log and info.dat stand: that of the
/// executable in a build tree or in a folder that somebody unpacked. An installed executable, known
/// by the `../share/ngtracker` beside its directory, stands where users may not write; its own
/// directory is then `ngtracker` among the user's application data, made if it is missing. One that
/// cannot be made is named all the same, and the first file written there is the error.
std::string ProgramDirectory(const std::filesystem::path& executableDirectory);

}  // namespace ng
