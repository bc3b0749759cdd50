#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ng {

// Text is 8-bit, one byte a character, in the Windows-1252 code page; only ui/wiring/text converts.

std::string_view TrimmedLeft(std::string_view text);
/// `text` without blanks and tabs at both ends.
std::string_view Trimmed(std::string_view text);

/// ASCII lower case of one character; the others, accented letters included, stay.
constexpr char AsciiLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
bool EqualIgnoringCase(std::string_view a, std::string_view b);
/// Whether a file name ends like this, ASCII case ignored (".ng3").
bool HasEnding(std::string_view name, std::string_view ending);
/// Orders names as a file list does: by their letters whatever their case, equal ones by case.
bool LessIgnoringCase(std::string_view a, std::string_view b);

bool Contains(std::string_view text, std::string_view part);
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

/// The pieces between the separators; the views point into `text`. An empty text has no pieces; a
/// separator at the end is followed by an empty piece.
std::vector<std::string_view> Split(std::string_view text, char separator);

/// The piece with this index of a text split at `separator`, empty when there is none.
std::string_view Piece(std::string_view text, char separator, int index);

/// Every occurrence of `from` replaced by `to`, once over the text from left to right.
std::string Replaced(std::string_view text, std::string_view from, std::string_view to);

/// `text` filled up with blanks to `width` characters; a longer one stays as it is.
std::string Padded(std::string_view text, std::size_t width);

/// Walks the pieces that Split gives without holding more than one, so that a line of nothing but
/// separators takes no memory.
class PieceReader {
 public:
  PieceReader(std::string_view text, char separator)
      : rest_(text), separator_(separator), more_(!text.empty()) {}

  /// False behind the last piece; otherwise `piece` is the next one.
  bool Next(std::string_view& piece);
  /// The next piece, of a text that must have it: Subscript out of range behind the last one.
  std::string_view Required();

 private:
  std::string_view rest_;
  char separator_;
  bool more_;
};

/// Walks the lines of a file's text, ended by CR LF, LF or CR. An end of line at the very end of
/// the text does not open another, empty line.
class LineReader {
 public:
  explicit LineReader(std::string_view text) : rest_(text) {}

  /// False at the end of the text; otherwise `line` is the next line without its end.
  bool Next(std::string_view& line);

 private:
  std::string_view rest_;
};

}  // namespace ng
