#pragma once

#include <cstdint>
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
  struct Section {
    std::uint32_t nameMark = 0;
    std::string_view name;
    std::size_t firstEntry = 0;
    std::size_t endEntry = 0;
  };
  struct Entry {
    std::string_view key;
    std::string_view value;
  };

  const Section* FindSection(std::string_view name) const;

  std::string text_;
  std::vector<Section> sections_;
  std::vector<Entry> entries_;
  /// Of the entries' keys, apart from them so that a search runs through few bytes.
  std::vector<std::uint32_t> keyMarks_;
  /// The section asked for last: readers go through a file section by section.
  mutable std::size_t lastSection_ = 0;
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

/// Reads one value. A `file` without a separator is looked for through MakeAppPath. A missing or
/// unreadable file, a missing section or key give the empty text.
std::string ReadINI(Files& files, const ProgramLocation& location, const std::string& file,
                    std::string_view section, std::string_view key);

/// The text of `path`, empty when it cannot be read: the profile reader reports nothing.
std::string ReadProfileText(Files& files, const std::string& path);

}  // namespace ng
