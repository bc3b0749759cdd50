#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/fixed_table.h"
#include "base/ports.h"

namespace ng {

/// The game master's index of reference entries: where in "info.dat" each name stands.
class InfoIndex {
 public:
  static constexpr int kLastEntry = 200;

  struct Entry {
    std::string name;
    /// Line of the file, counted from 1 over all lines, comments included.
    Integer line;
  };

  /// Reads the first of `paths` that can be read; nothing is reported when none can, since the
  /// index is an aid. Returns the message to show, empty when all went well; the 201st entry
  /// is kept and ends the loading with a message.
  std::string Load(Files& files, const std::vector<std::string>& paths);

  int Count() const { return count_; }
  const Entry& At(int index) const { return entries_[index]; }
  const std::string& FileName() const { return fileName_; }

  /// The indices of the entries whose name contains `text`, ASCII case ignored; all for an empty
  /// text.
  std::vector<int> Matching(std::string_view text) const;
  /// The first entry of this name, ASCII case ignored, or -1.
  int Find(std::string_view name) const;

  /// What the file says about an entry: the text behind the first "|" of its line and the lines
  /// that follow, comments included, up to the next entry, parted by CR LF. The file is read again;
  /// empty when it has become too short or the entry is not there. Throws the file
  /// errors, Subscript out of range for an index outside 0 to 200.
  std::string EntryText(Files& files, int index) const;

 private:
  std::string Index(std::string_view text);

  FixedTable<Entry, kLastEntry> entries_;
  int count_ = 0;
  std::string fileName_;
};

}  // namespace ng
