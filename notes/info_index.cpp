#include "notes/info_index.h"

#include "base/runtime_error.h"
#include "base/text.h"

namespace ng {

std::string InfoIndex::Load(Files& files, const std::vector<std::string>& paths) {
  count_ = 0;
  for (const std::string& path : paths) {
    fileName_ = path;
    try {
      return Index(files.ReadWhole(path));
    } catch (const RuntimeError&) {
      // What was read stays; the next place is tried.
      if (count_ > 0) return {};
    }
  }
  return {};
}

std::string InfoIndex::Index(std::string_view text) {
  LineReader lines(text);
  std::string_view line;
  Integer lineNumber;
  while (lines.Next(line)) {
    lineNumber += 1;
    if (line.empty() || line.starts_with('!')) continue;
    entries_[count_] = {std::string(Piece(line, '|', 0)), lineNumber};
    ++count_;
    if (count_ > kLastEntry) return "Error opening: Info.dat";
  }
  return {};
}

}  // namespace ng
