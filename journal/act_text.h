#pragma once

#include <string>
#include <string_view>

#include "app/act.h"

namespace ng {

/// A text in quotes with everything that is no plain character as "%" and two hexadecimal digits.
std::string Quoted(std::string_view text);
/// The same, behind what `line` holds already.
void AppendQuoted(std::string& line, std::string_view text);

/// Takes the next word, number or text in quotes off the front of a line. std::runtime_error where
/// something else is there.
class WordReader {
 public:
  explicit WordReader(std::string_view line);

  bool AtEnd() const { return rest_.empty(); }
  bool AtText() const { return rest_.starts_with('"'); }
  /// Whether the next word begins like this.
  bool At(char first) const { return rest_.starts_with(first); }

  std::string_view Word();
  int Number();
  std::string Text();

 private:
  std::string_view rest_;
};

/// An act as a line: the control, its index unless it is 0, its text unless it is empty.
std::string ActText(const Act& act);

/// The act of a line. std::runtime_error for a line that holds none.
Act ReadAct(std::string_view line);

}  // namespace ng
