#include "base/text.h"

#include <algorithm>

#include "base/runtime_error.h"

namespace ng {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

}  // namespace

std::string_view TrimmedLeft(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  return text;
}

std::string_view Trimmed(std::string_view text) {
  text = TrimmedLeft(text);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (AsciiLower(a[i]) != AsciiLower(b[i])) return false;
  }
  return true;
}

bool HasEnding(std::string_view name, std::string_view ending) {
  return name.size() >= ending.size() &&
         EqualIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

bool LessIgnoringCase(std::string_view a, std::string_view b) {
  const auto lower = [](char x, char y) {
    return static_cast<unsigned char>(AsciiLower(x)) < static_cast<unsigned char>(AsciiLower(y));
  };
  if (std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), lower)) return true;
  if (std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(), lower)) return false;
  return a < b;
}

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  const auto found = std::search(text.begin(), text.end(), part.begin(), part.end(),
                                 [](char x, char y) { return AsciiLower(x) == AsciiLower(y); });
  return found != text.end() || part.empty();
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  PieceReader reader(text, separator);
  for (std::string_view piece; reader.Next(piece);) pieces.push_back(piece);
  return pieces;
}

std::string_view Piece(std::string_view text, char separator, int index) {
  if (index < 0) return {};
  for (; index > 0; --index) {
    const std::size_t end = text.find(separator);
    if (end == std::string_view::npos) return {};
    text.remove_prefix(end + 1);
  }
  return text.substr(0, text.find(separator));
}

std::string Replaced(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  result.reserve(text.size());
  std::size_t start = 0;
  for (std::size_t hit = text.find(from); hit != std::string_view::npos;
       hit = text.find(from, start)) {
    result.append(text, start, hit - start).append(to);
    start = hit + from.size();
  }
  return result.append(text, start);
}

std::string Padded(std::string_view text, std::size_t width) {
  std::string result(text);
  if (result.size() < width) result.append(width - result.size(), ' ');
  return result;
}

bool PieceReader::Next(std::string_view& piece) {
  if (!more_) return false;
  const std::size_t end = rest_.find(separator_);
  piece = rest_.substr(0, end);
  more_ = end != std::string_view::npos;
  if (more_) rest_.remove_prefix(end + 1);
  return true;
}

std::string_view PieceReader::Required() {
  std::string_view piece;
  if (!Next(piece)) ThrowSubscript();
  return piece;
}

bool LineReader::Next(std::string_view& line) {
  if (rest_.empty()) return false;
  std::size_t end = 0;
  while (end < rest_.size() && rest_[end] != '\r' && rest_[end] != '\n') ++end;
  line = rest_.substr(0, end);
  const bool pair = rest_.substr(end, 2) == "\r\n";
  rest_.remove_prefix(std::min(end + (pair ? 2 : 1), rest_.size()));
  return true;
}

}  // namespace ng
