#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/ports.h"
#include "journal/journal_file.h"

namespace ng {

// A journal is named after the moment when its fight was begun or last taken up, and its ending
// tells whether the fight was closed properly: a program that is killed leaves the other one.

inline constexpr const char* kOpenEnding = ".open";
/// Not closed properly, but the game master did not want it back at the next start.
inline constexpr const char* kDeclinedEnding = ".left";
inline constexpr const char* kClosedEnding = ".ngj";

/// A fight whose journal is kept.
struct KeptFight {
  std::string name;
  /// When it was begun or last taken up, "2026-11-21 21:43".
  std::string when;
  FightSummary summary;
  bool closed = false;
  /// A program that runs has it open.
  bool held = false;
};

/// Newest first. A journal that cannot be read is left out.
std::vector<KeptFight> KeptFights(JournalStore& store);

/// The newest fight that was not closed and that no running program holds.
std::optional<KeptFight> UnclosedFight(JournalStore& store);

/// A name for a fight that is begun or taken up at `now`, different from all that are there.
std::string NewJournalName(JournalStore& store, const std::string& now);

/// The name of an open journal when it is closed.
std::string ClosedName(const std::string& name);

/// The name of a journal that is not to be offered again.
std::string DeclinedName(const std::string& name);

/// Removes the oldest journals that no running program holds until `kept` are left.
void RemoveOldJournals(JournalStore& store, std::size_t kept);

}  // namespace ng
