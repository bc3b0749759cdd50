#pragma once

#include <iosfwd>
#include <string_view>

namespace ng {

/// Plays the acts of `script`, or a journal that a running program has kept, and writes the
/// transcript. Throws std::runtime_error with the line's number on a line that cannot be read, on
/// an unexpected question and on a leftover answer.
void Play(std::string_view script, std::ostream& transcript);

}  // namespace ng
