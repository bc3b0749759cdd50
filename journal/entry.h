#pragma once

#include <string>
#include <vector>

#include "app/act.h"

namespace ng {

/// What the game master answered to a question that an act asked.
struct Answer {
  enum class Kind { Input, File, Cancel, Save, Discard, Modal };
  Kind kind;
  /// What was typed into the input box, or the file that was chosen.
  std::string text;
  /// What was done in a modal form.
  std::vector<Act> acts;

  friend bool operator==(const Answer&, const Answer&) = default;
};

/// What came of something that an act asked of files or settings.
struct Outcome {
  enum class Kind {
    /// A file was read; `text` is the digest of its content.
    Content,
    /// A directory was listed; `number` files in it cannot be named.
    Names,
    /// A file was written.
    Done,
    /// A runtime error; `number` and, where it has one, its detail as `text`.
    Error,
    /// A number of the user settings.
    Setting
  };
  Kind kind;
  std::string text;
  std::vector<std::string> names;
  int number = 0;

  friend bool operator==(const Outcome&, const Outcome&) = default;
};

/// An act with all that came in from outside while it ran. Played again with these it does the
/// same.
struct Entry {
  Act act;
  /// When it was done, as the clock gave it ("2026-11-21 21:43:05"); empty where nobody noted it.
  std::string when;
  std::vector<Answer> answers;
  std::vector<Outcome> outcomes;
  /// The digest of the fight behind the act; empty where none was taken.
  std::string digest;

  friend bool operator==(const Entry&, const Entry&) = default;
};

}  // namespace ng
