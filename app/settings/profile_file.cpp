#include "app/settings/profile_file.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "base/runtime_error.h"
#include "base/text.h"

namespace ng {
namespace {

/// Values are read into 4096 characters, as *.ini files are elsewhere; the last is an end mark.
constexpr std::size_t kLongestValue = 4095;

/// Length and first, middle and last letter, whatever their case. Names that are equal have equal
/// marks; most others differ, at a fraction of what a hash of all letters costs.
std::uint32_t MarkOf(std::string_view name) {
  if (name.empty()) return 0;
  const auto letter = [name](std::size_t index) {
    return std::uint32_t{static_cast<unsigned char>(AsciiLower(name[index]))};
  };
  return static_cast<std::uint32_t>(name.size()) << 24U | letter(0) << 16U |
         letter(name.size() / 2) << 8U | letter(name.size() - 1);
}

/// The number after `word` in the key of a numbered list; nothing when the key is another one or
/// the number is not in plain decimal ("Gear01").
std::optional<std::size_t> NumberBehind(std::string_view word, std::string_view key) {
  if (key.size() <= word.size()) return {};
  const std::string_view digits = key.substr(word.size());
  std::size_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto result = std::from_chars(digits.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return {};
  if (digits.size() > 1 && digits.front() == '0') return {};
  if (!EqualIgnoringCase(key.substr(0, word.size()), word)) return {};
  return number;
}

std::string_view WithoutQuotes(std::string_view value) {
  const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                      value.front() == value.back();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

/// Walks the lines of a text. Empty lines mean nothing here, so that the two ends of a CR LF need
/// not be told from two lines, and every end is found by a plain search, faster than a LineReader.
class FilledLines {
 public:
  explicit FilledLines(std::string_view text)
      : text_(text), nextCr_(text.find('\r')), nextLf_(text.find('\n')) {}

  bool Next(std::string_view& line) {
    while (start_ < text_.size()) {
      if (nextCr_ < start_) nextCr_ = text_.find('\r', start_);
      if (nextLf_ < start_) nextLf_ = text_.find('\n', start_);
      line = text_.substr(start_, std::min(nextCr_, nextLf_) - start_);
      start_ += line.size() + 1;
      if (!line.empty()) return true;
    }
    return false;
  }

 private:
  std::string_view text_;
  std::size_t start_ = 0;
  std::size_t nextCr_;
  std::size_t nextLf_;
};

}  // namespace

ProfileFile::ProfileFile(std::string text) : text_(std::move(text)) {
  // A typical line is a little longer. Growing step by step would cost more than it saves.
  entries_.reserve(text_.size() / 32);
  keyMarks_.reserve(text_.size() / 32);
  FilledLines lines(text_);
  std::string_view line;
  while (lines.Next(line)) {
    line = Trimmed(line);
    if (line.empty() || line.front() == ';') continue;
    if (line.front() == '[') {
      const std::string_view name = Trimmed(line.substr(1, line.find(']') - 1));
      sections_.push_back({MarkOf(name), name, entries_.size(), entries_.size()});
      continue;
    }
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || sections_.empty()) continue;
    const std::string_view key = Trimmed(line.substr(0, equals));
    const std::string_view value = WithoutQuotes(Trimmed(line.substr(equals + 1)));
    entries_.push_back({key, value.substr(0, kLongestValue)});
    keyMarks_.push_back(MarkOf(key));
    sections_.back().endEntry = entries_.size();
  }
}

const ProfileFile::Section* ProfileFile::FindSection(std::string_view name) const {
  if (lastSection_ < sections_.size() && sections_[lastSection_].name == name) {
    return &sections_[lastSection_];
  }
  const std::uint32_t mark = MarkOf(name);
  for (std::size_t i = 0; i < sections_.size(); ++i) {
    const Section& section = sections_[i];
    if (section.nameMark == mark && EqualIgnoringCase(section.name, name)) {
      lastSection_ = i;
      return &section;
    }
  }
  return nullptr;
}

std::string_view ProfileFile::Value(std::string_view section, std::string_view key) const {
  const Section* found = FindSection(section);
  if (found == nullptr) return {};
  const std::uint32_t mark = MarkOf(key);
  const auto end = keyMarks_.begin() + static_cast<std::ptrdiff_t>(found->endEntry);
  auto hit = keyMarks_.begin() + static_cast<std::ptrdiff_t>(found->firstEntry);
  while ((hit = std::find(hit, end, mark)) != end) {
    const Entry& entry = entries_[static_cast<std::size_t>(hit - keyMarks_.begin())];
    if (EqualIgnoringCase(entry.key, key)) return entry.value;
    ++hit;
  }
  return {};
}

std::vector<std::string_view> ProfileFile::NumberedValues(std::string_view section,
                                                          std::string_view word) const {
  const Section* found = FindSection(section);
  if (found == nullptr) return {};
  // One walk over the section instead of a search for every number. A list without gaps has no
  // number past the section's length.
  std::vector<std::string_view> values(found->endEntry - found->firstEntry);
  for (std::size_t i = found->firstEntry; i < found->endEntry; ++i) {
    const std::optional<std::size_t> number = NumberBehind(word, entries_[i].key);
    if (!number || *number >= values.size()) continue;
    // The first key of a name counts, even if its value is empty; that one is no null view.
    if (values[*number].data() == nullptr) values[*number] = entries_[i].value;
  }
  values.erase(std::find(values.begin(), values.end(), std::string_view()), values.end());
  return values;
}

std::string ProfileFile::TakeText() && {
  sections_.clear();
  entries_.clear();
  keyMarks_.clear();
  return std::move(text_);
}

bool HasSeparator(std::string_view path) {
  return path.find_first_of("\\/") != std::string_view::npos;
}

std::string MakeAppPath(const ProgramLocation& location, std::string_view file) {
  if (!location.commandLine.empty()) return location.commandLine;
  std::string path = location.directory;
  if (!path.ends_with('\\')) path += '\\';
  return path.append(file);
}

std::string ReadProfileText(Files& files, const std::string& path) {
  try {
    return files.ReadWhole(path);
  } catch (const RuntimeError&) {
    return {};
  }
}

std::string ReadINI(Files& files, const ProgramLocation& location, const std::string& file,
                    std::string_view section, std::string_view key) {
  const std::string path = HasSeparator(file) ? file : MakeAppPath(location, file);
  const ProfileFile profile(ReadProfileText(files, path));
  return std::string(profile.Value(section, key));
}

}  // namespace ng
