#pragma once

#include <iosfwd>

namespace ng {

/// Plays the acts of `script` and writes the transcript. Throws std::runtime_error with the line's
/// number on a line that cannot be read, on an unexpected question and on a leftover answer.
void Play(std::istream& script, std::ostream& transcript);

}  // namespace ng
