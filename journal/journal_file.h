#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "app/settings/profile_file.h"
#include "journal/entry_text.h"
#include "journal/record_file.h"
#include "journal/timeline.h"

namespace ng {

/// What a fight was begun with.
struct JournalHead {
  std::string program;
  std::uint32_t seed = 0;
  ProgramLocation location;
};

/// What is told of a fight without playing it.
struct FightSummary {
  int combatants = 0;
  int combatTurn = 0;
  /// The state file that it was saved to or loaded from last, empty for none.
  std::string stateFile;

  friend bool operator==(const FightSummary&, const FightSummary&) = default;
};

/// The bodies of a journal's records.
std::string HeadRecord(const JournalHead& head);
std::string ContentRecord(std::string_view digest, std::string_view content);
std::string CursorRecord(std::size_t cursor);
std::string SummaryRecord(const FightSummary& summary);

/// A journal as it was read, as far as it is whole.
struct Journal {
  JournalHead head;
  Contents contents;
  Timeline timeline;
  FightSummary summary;
  /// Bytes up to the end of the last whole record, and what comes behind.
  std::size_t wholeBytes = 0;
  JournalRecords::End end = JournalRecords::End::Whole;
};

/// Reads a journal. std::runtime_error, in words for the game master, where the text is none.
Journal ReadJournal(std::string_view text);

/// The summary that was written last; nothing else is read.
FightSummary ReadSummary(std::string_view text);

}  // namespace ng
