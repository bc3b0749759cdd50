#pragma once

#include <string>
#include <string_view>

#include "base/ports.h"

namespace ng {

// A note file holds a combatant's note, encoded so that one of several lines fits on one line.

/// The note at `path`: the file's first line, decoded. A "_" comes back as a blank. "Input past end
/// of file" for an empty file; otherwise the file errors.
std::string ReadNote(Files& files, const std::string& path);

/// Replaces the note file at `path` in one step. Throws the file errors.
void WriteNote(Files& files, const std::string& path, std::string_view note);

}  // namespace ng
