#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "journal/entry.h"

namespace ng {

/// The contents of files by their digests.
using Contents = std::map<std::string, std::string, std::less<>>;

/// Writes entries one after the other as the lines of golden fights. What an entry shares with the
/// one before, the hour and most of a long text that is being typed, is not written again.
class EntryWriter {
 public:
  /// The entry's lines, each ended by LF.
  std::string Lines(const Entry& entry);
  /// Goes on behind an entry that was read or written elsewhere.
  void Follow(const Entry& entry);

 private:
  Act last_;
  std::string when_;
};

/// Reads such lines, one at a time. std::runtime_error for a line that is none of these.
class EntryReader {
 public:
  explicit EntryReader(Contents& contents) : contents_(contents) {}

  /// Takes one line. Where it begins an entry, the entry before it is complete and is returned.
  std::optional<Entry> Take(std::string_view line);
  /// The last entry, when there are no more lines.
  std::optional<Entry> Finish();

 private:
  void TakeAnswer(std::string_view line);
  Act TakeAct(std::string_view line) const;

  Contents& contents_;
  std::optional<Entry> open_;
  /// The act of the last entry, which a shortened text refers to.
  Act last_;
  std::string when_;
};

}  // namespace ng
