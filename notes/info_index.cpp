#include "notes/info_index.h"

#include "base/runtime_error.h"
#include "base/text.h"

namespace ng {
namespace {

bool IsEntry(std::string_view line) { return !line.empty() && !line.starts_with('!'); }

std::string_view AfterFirstBar(std::string_view line) {
  const std::size_t bar = line.find('|');
  return bar == std::string_view::npos ? std::string_view{} : line.substr(bar + 1);
}

}  // namespace

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
    if (!IsEntry(line)) continue;
    entries_[count_] = {std::string(Piece(line, '|', 0)), lineNumber};
    ++count_;
    if (count_ > kLastEntry) return "Error opening: Info.dat";
  }
  return {};
}

std::vector<int> InfoIndex::Matching(std::string_view text) const {
  std::vector<int> indices;
  for (int i = 0; i < count_; ++i) {
    if (ContainsIgnoringCase(entries_[i].name, text)) indices.push_back(i);
  }
  return indices;
}

int InfoIndex::Find(std::string_view name) const {
  for (int i = 0; i < count_; ++i) {
    if (EqualIgnoringCase(entries_[i].name, name)) return i;
  }
  return -1;
}

std::string InfoIndex::EntryText(Files& files, int index) const {
  const Integer wanted = At(index).line;
  const std::string text = files.ReadWhole(fileName_);
  LineReader lines(text);
  std::string_view line;
  std::string result;
  if (wanted == 0) return result;
  for (int number = 1; lines.Next(line); ++number) {
    if (number < wanted.Value()) continue;
    if (number == wanted.Value()) {
      result = AfterFirstBar(line);
      continue;
    }
    if (IsEntry(line)) break;
    if (!result.empty()) result += "\r\n";
    result += line;
  }
  return result;
}

}  // namespace ng
