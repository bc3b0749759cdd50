#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/ports.h"

namespace ng {

/// An initialisation file ("[Section]" lines, then "Key=Value" lines), parsed once and asked as
/// often as wanted. Reads *.ini files as they are read elsewhere: the first section of a name and
/// the first key in it count, ASCII case is ignored, blanks and tabs round key and value go, one
/// pair of equal quotes round the whole value goes, lines that begin with ";" are comments.
class ProfileFile {
 public:
  ProfileFile() = default;
  /// Takes the file's text. Anything parses: what is no section and no entry is passed over.
  explicit ProfileFile(std::string text);

  // The entries view into the text.
  ProfileFile(const ProfileFile&) = delete;
  ProfileFile& operator=(const ProfileFile&) = delete;
  ProfileFile(ProfileFile&&) = delete;
  ProfileFile& operator=(ProfileFile&&) = delete;

  /// The value, cut to 4095 characters; empty when section or key are missing. The view lives as
  /// long as this file.
  std::string_view Value(std::string_view section, std::string_view key) const;
  bool HasSection(std::string_view name) const { return FindSection(name).has_value(); }

  /// The values of a numbered list, whose keys are `word` followed by 0, 1, 2 and so on in plain
  /// decimal ("Gear0"), up to the first that is missing or empty. The views live as long as this
  /// file.
  std::vector<std::string_view> NumberedValues(std::string_view section,
                                               std::string_view word) const;

  /// The whole text; every value views into it.
  const std::string& Text() const { return text_; }
  /// Gives the text up. The file is empty afterwards.
  std::string TakeText() &&;

 private:
  // Kept as places in the text, so that a file of nothing but short lines does not grow to many
  // times its size in memory.
  struct Section {
    /// Of the name, behind the "[".
    std::uint32_t start = 0;
    std::uint32_t firstEntry = 0;
  };
  struct Entry {
    std::uint32_t start = 0;
    std::uint32_t equals = 0;
    std::uint32_t end = 0;
  };
  /// Of entries, from the first one to behind the last.
  struct Range {
    std::size_t begin = 0;
    std::size_t end = 0;
  };

  void AddSection(std::string_view line);
  void AddEntry(std::string_view line);
  std::uint32_t PlaceOf(std::string_view part) const;
  std::optional<std::size_t> FindSection(std::string_view name) const;
  /// Empty for a section that is not there.
  Range EntriesOf(std::string_view section) const;
  std::string_view SectionName(std::size_t section) const;
  std::string_view KeyOf(std::size_t entry) const;
  std::string_view ValueOf(std::size_t entry) const;

  std::string text_;
  std::vector<Section> sections_;
  std::vector<Entry> entries_;
  /// Of the names and the keys, apart from them so that a search runs through few bytes.
  std::vector<std::uint32_t> sectionMarks_;
  std::vector<std::uint32_t> keyMarks_;
  /// The section asked for last: readers go through a file section by section.
  mutable std::optional<std::size_t> lastSection_;
  mutable std::string_view lastName_;
};

/// Where the program finds what is beside it.
struct ProgramLocation {
  /// The first program argument as it stands, empty when there is none: the settings file to read.
  std::string commandLine;
  /// The program's own directory.
  std::string directory;
};

/// The path of `file` in the program's directory; when the command line is not empty, the command
/// line, whatever `file` is.
std::string MakeAppPath(const ProgramLocation& location, std::string_view file);

/// Whether `path` holds a directory separator: "\" and, in the POSIX form, "/".
bool HasSeparator(std::string_view path);

/// The text of `path`; nothing when it cannot be read: the profile reader reports no reason.
std::optional<std::string> ReadProfileText(Files& files, const std::string& path);

/// Reads single values. A file is read and parsed once for all the values that are asked of it in a
/// row.
class ProfileReader {
 public:
  ProfileReader(Files& files, const ProgramLocation& location)
      : files_(files), location_(location) {}

  /// Reads one value. A `file` without a separator is looked for through MakeAppPath. A missing or
  /// unreadable file, a missing section or key give the empty text.
  std::string ReadINI(const std::string& file, std::string_view section, std::string_view key);
  /// Lets the next value be read from the file as it is by then.
  void Forget() { profile_.reset(); }

 private:
  Files& files_;
  const ProgramLocation& location_;
  std::string path_;
  std::optional<ProfileFile> profile_;
};

}  // namespace ng
