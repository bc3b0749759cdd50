#pragma once

#include <cstddef>
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
  void Clear();

  /// Hands the first `count` entries to `take`, which ends the walk by false.
  void ForEach(std::size_t count, Contents& contents,
               const std::function<bool(const Entry&)>& take) const;
  /// Bytes in memory.
  std::size_t Bytes() const;

 private:
  std::string text_;
  /// Where each entry's lines end.
  std::vector<std::size_t> ends_;
  std::size_t cursor_ = 0;
};

}  // namespace ng
