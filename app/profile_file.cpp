#include "app/profile_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "base/runtime_error.h"
#include "base/text.h"

namespace ng {
namespace {

/// The platform's buffer of 4096 characters holds the value and an end mark.
constexpr std::size_t kLongestValue = 4095;

std::uint32_t HashIgnoringCase(std::string_view text) {
  std::uint32_t hash = 2166136261U;
  for (const char c : text) {
    hash = (hash ^ static_cast<unsigned char>(AsciiLower(c))) * 16777619U;
  }
  return hash;
}

std::string_view WithoutQuotes(std::string_view value) {
  const bool quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
                      value.front() == value.back();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

ProfileFile::ProfileFile(std::string text) : text_(std::move(text)) {
  LineReader lines(text_);
  std::string_view line;
  while (lines.Next(line)) {
    line = Trimmed(line);
    if (line.empty() || line.front() == ';') continue;
    if (line.front() == '[') {
      const std::string_view name = Trimmed(line.substr(1, line.find(']') - 1));
      sections_.push_back({HashIgnoringCase(name), name, entries_.size(), entries_.size()});
      continue;
    }
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || sections_.empty()) continue;
    const std::string_view key = Trimmed(line.substr(0, equals));
    const std::string_view value = WithoutQuotes(Trimmed(line.substr(equals + 1)));
    entries_.push_back({key, value.substr(0, kLongestValue)});
    keyHashes_.push_back(HashIgnoringCase(key));
    sections_.back().endEntry = entries_.size();
  }
}

const ProfileFile::Section* ProfileFile::FindSection(std::string_view name) const {
  if (lastSection_ < sections_.size() && sections_[lastSection_].name == name) {
    return &sections_[lastSection_];
  }
  const std::uint32_t hash = HashIgnoringCase(name);
  for (std::size_t i = 0; i < sections_.size(); ++i) {
    const Section& section = sections_[i];
    if (section.nameHash == hash && EqualIgnoringCase(section.name, name)) {
      lastSection_ = i;
      return &section;
    }
  }
  return nullptr;
}

std::string_view ProfileFile::Value(std::string_view section, std::string_view key) const {
  const Section* found = FindSection(section);
  if (found == nullptr) return {};
  const std::uint32_t hash = HashIgnoringCase(key);
  const auto end = keyHashes_.begin() + static_cast<std::ptrdiff_t>(found->endEntry);
  auto hit = keyHashes_.begin() + static_cast<std::ptrdiff_t>(found->firstEntry);
  while ((hit = std::find(hit, end, hash)) != end) {
    const Entry& entry = entries_[static_cast<std::size_t>(hit - keyHashes_.begin())];
    if (EqualIgnoringCase(entry.key, key)) return entry.value;
    ++hit;
  }
  return {};
}

std::string_view ProfileFile::Value(std::string_view section, std::string_view word,
                                    int number) const {
  std::string key(word);
  std::array<char, 12> digits{};
  key.append(digits.data(),
             std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
  return Value(section, key);
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
