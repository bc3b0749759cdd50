#include "app/settings/profile_file.h"

#include <algorithm>
#include <charconv>
#include <limits>
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

/// Whether a key with this mark may belong to a numbered list.
bool MayBegin(std::string_view word, std::uint32_t keyMark) {
  return ((keyMark ^ MarkOf(word)) >> 16U & 0xFFU) == 0;
}

/// Puts the values of a numbered list in their order, whatever order they come in.
class NumberedList {
 public:
  void Add(std::size_t number, std::string_view value) {
    if (late_.empty() && number == values_.size() && !value.empty()) {
      values_.push_back(value);
    } else if (number >= values_.size()) {
      late_.push_back({number, value});
    }
  }

  /// The values up to the first that is missing or empty. The first of a number counts.
  std::vector<std::string_view> Take() {
    std::ranges::stable_sort(late_, {}, &Late::number);
    for (const Late& late : late_) {
      if (late.number < values_.size()) continue;
      if (late.number > values_.size() || late.value.empty()) break;
      values_.push_back(late.value);
    }
    return std::move(values_);
  }

 private:
  struct Late {
    std::size_t number;
    std::string_view value;
  };

  std::vector<std::string_view> values_;
  std::vector<Late> late_;
};

}  // namespace

ProfileFile::ProfileFile(std::string text) : text_(std::move(text)) {
  // No file of 4 GB is read whole; a text of that length is taken as far as its places can be kept.
  text_.resize(std::min<std::size_t>(text_.size(), std::numeric_limits<std::uint32_t>::max()));
  // A typical line is a little longer. Growing step by step would cost more than it saves.
  entries_.reserve(text_.size() / 32);
  keyMarks_.reserve(text_.size() / 32);
  FilledLines lines(text_);
  std::string_view line;
  while (lines.Next(line)) {
    line = Trimmed(line);
    if (line.empty() || line.front() == ';') continue;
    if (line.front() == '[') {
      AddSection(line);
    } else if (!sections_.empty()) {
      AddEntry(line);
    }
  }
}

void ProfileFile::AddSection(std::string_view line) {
  line.remove_prefix(1);
  sections_.push_back({PlaceOf(line), static_cast<std::uint32_t>(entries_.size())});
  sectionMarks_.push_back(MarkOf(SectionName(sections_.size() - 1)));
}

void ProfileFile::AddEntry(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return;
  const std::uint32_t start = PlaceOf(line);
  entries_.push_back({start, start + static_cast<std::uint32_t>(equals),
                      start + static_cast<std::uint32_t>(line.size())});
  keyMarks_.push_back(MarkOf(Trimmed(line.substr(0, equals))));
}

std::uint32_t ProfileFile::PlaceOf(std::string_view part) const {
  return static_cast<std::uint32_t>(part.data() - text_.data());
}

std::string_view ProfileFile::SectionName(std::size_t section) const {
  std::string_view line;
  LineReader(std::string_view(text_).substr(sections_[section].start)).Next(line);
  return Trimmed(line.substr(0, line.find(']')));
}

std::string_view ProfileFile::KeyOf(std::size_t entry) const {
  const Entry& place = entries_[entry];
  return Trimmed(std::string_view(text_).substr(place.start, place.equals - place.start));
}

std::string_view ProfileFile::ValueOf(std::size_t entry) const {
  const Entry& place = entries_[entry];
  const std::size_t start = std::size_t{place.equals} + 1;
  const std::string_view value = std::string_view(text_).substr(start, place.end - start);
  return WithoutQuotes(Trimmed(value)).substr(0, kLongestValue);
}

std::optional<std::size_t> ProfileFile::FindSection(std::string_view name) const {
  if (lastSection_ && EqualIgnoringCase(lastName_, name)) return lastSection_;
  const std::uint32_t mark = MarkOf(name);
  auto hit = sectionMarks_.begin();
  while ((hit = std::find(hit, sectionMarks_.end(), mark)) != sectionMarks_.end()) {
    const auto section = static_cast<std::size_t>(hit - sectionMarks_.begin());
    const std::string_view sectionName = SectionName(section);
    if (EqualIgnoringCase(sectionName, name)) {
      lastName_ = sectionName;
      return lastSection_ = section;
    }
    ++hit;
  }
  return std::nullopt;
}

ProfileFile::Range ProfileFile::EntriesOf(std::string_view section) const {
  const std::optional<std::size_t> found = FindSection(section);
  if (!found) return {};
  const bool last = *found + 1 == sections_.size();
  return {sections_[*found].firstEntry, last ? entries_.size() : sections_[*found + 1].firstEntry};
}

std::string_view ProfileFile::Value(std::string_view section, std::string_view key) const {
  const Range range = EntriesOf(section);
  const std::uint32_t mark = MarkOf(key);
  const auto end = keyMarks_.begin() + static_cast<std::ptrdiff_t>(range.end);
  auto hit = keyMarks_.begin() + static_cast<std::ptrdiff_t>(range.begin);
  while ((hit = std::find(hit, end, mark)) != end) {
    const auto entry = static_cast<std::size_t>(hit - keyMarks_.begin());
    if (EqualIgnoringCase(KeyOf(entry), key)) return ValueOf(entry);
    ++hit;
  }
  return {};
}

std::vector<std::string_view> ProfileFile::NumberedValues(std::string_view section,
                                                          std::string_view word) const {
  // One walk over the section instead of a search for every number.
  NumberedList list;
  const Range range = EntriesOf(section);
  for (std::size_t i = range.begin; i < range.end; ++i) {
    if (!MayBegin(word, keyMarks_[i])) continue;
    const std::optional<std::size_t> number = NumberBehind(word, KeyOf(i));
    if (number) list.Add(*number, ValueOf(i));
  }
  return list.Take();
}

std::string ProfileFile::TakeText() && {
  lastSection_.reset();
  sections_.clear();
  entries_.clear();
  sectionMarks_.clear();
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

std::optional<std::string> ReadProfileText(Files& files, const std::string& path) {
  try {
    return files.ReadWhole(path);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

std::string ProfileReader::ReadINI(const std::string& file, std::string_view section,
                                   std::string_view key) {
  const std::string path = HasSeparator(file) ? file : MakeAppPath(location_, file);
  if (!profile_ || path != path_) {
    path_ = path;
    profile_.emplace(ReadProfileText(files_, path).value_or(std::string()));
  }
  return std::string(profile_->Value(section, key));
}

}  // namespace ng
