#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "journal/entry.h"
#include "journal/entry_text.h"

namespace ng {

/// The acts of a fight in their order, with the place up to which they are done; what lies behind
/// it was undone and can be done again. Kept as the lines that the journal's file holds, which take
/// a tenth of the room.
class Timeline {
 public:
  std::size_t Size() const { return ends_.size(); }
  /// How many entries are done.
  std::size_t Cursor() const { return cursor_; }
  /// Values beyond the end are held there.
  void SetCursor(std::size_t cursor);

  /// Adds an entry behind the cursor, where whatever was undone goes. `lines` are an EntryWriter's.
  void Add(std::string_view lines);

  /// How far a walk has come.
  struct Place {
    explicit Place(Contents& contents) : reader(contents) {}
    EntryReader reader;
    std::size_t offset = 0;
    /// Entries that were handed over.
    std::size_t entries = 0;
  };
  /// Hands the entries from the place up to the first `count` to `take`, which ends the walk by
  /// false.
  void Walk(Place& place, std::size_t count, const std::function<bool(const Entry&)>& take) const;
  /// The same from the first entry on.
  void ForEach(std::size_t count, Contents& contents,
               const std::function<bool(const Entry&)>& take) const;
  /// Counts up when entries were replaced, so that what was worked out from them is void.
  int Generation() const { return generation_; }
  /// Bytes in memory.
  std::size_t Bytes() const;

 private:
  std::string text_;
  /// Where each entry's lines end.
  std::vector<std::uint32_t> ends_;
  std::size_t cursor_ = 0;
  int generation_ = 0;
};

}  // namespace ng
