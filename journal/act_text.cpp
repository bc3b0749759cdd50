#include "journal/act_text.h"

#include <charconv>
#include <stdexcept>

#include "base/text.h"

namespace ng {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

bool IsPlain(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '%'; }

/// The character behind a "%".
char Decoded(std::string_view digits) {
  unsigned code = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
  if (digits.size() != 2 || result.ptr != digits.data() + 2) {
    throw std::runtime_error("two hexadecimal digits are wanted after %");
  }
  return static_cast<char>(static_cast<unsigned char>(code));
}

}  // namespace

void AppendQuoted(std::string& line, std::string_view text) {
  line += '"';
  for (const char c : text) {
    if (IsPlain(c)) {
      line += c;
      continue;
    }
    const auto code = static_cast<unsigned char>(c);
    line += '%';
    line += kHexDigits[code / 16U];
    line += kHexDigits[code % 16U];
  }
  line += '"';
}

std::string Quoted(std::string_view text) {
  std::string result;
  AppendQuoted(result, text);
  return result;
}

WordReader::WordReader(std::string_view line) : rest_(Trimmed(line)) {}

std::string_view WordReader::Word() {
  const std::string_view word = rest_.substr(0, rest_.find(' '));
  rest_ = TrimmedLeft(rest_.substr(word.size()));
  return word;
}

int WordReader::Number() {
  const std::string_view word = Word();
  int number = 0;
  const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
  if (word.empty() || result.ec != std::errc() || result.ptr != word.data() + word.size()) {
    throw std::runtime_error("not a number: " + std::string(word));
  }
  return number;
}

std::string WordReader::Text() {
  const std::size_t end = AtText() ? rest_.find('"', 1) : std::string_view::npos;
  if (end == std::string_view::npos) throw std::runtime_error("a text in quotes is wanted");
  const std::string_view quoted = rest_.substr(1, end - 1);
  rest_ = TrimmedLeft(rest_.substr(end + 1));
  std::string text;
  text.reserve(quoted.size());
  for (std::size_t i = 0; i < quoted.size(); ++i) {
    if (quoted[i] != '%') {
      text += quoted[i];
      continue;
    }
    text += Decoded(quoted.substr(i + 1, 2));
    i += 2;
  }
  return text;
}

std::string ActText(const Act& act) {
  std::string line = act.control;
  if (act.index != 0) line.append(" ").append(std::to_string(act.index));
  if (act.text.empty()) return line;
  line += ' ';
  AppendQuoted(line, act.text);
  return line;
}

Act ReadAct(std::string_view line) {
  WordReader words(line);
  Act act{std::string(words.Word()), 0, {}};
  if (act.control.empty()) throw std::runtime_error("an act is wanted");
  if (!words.AtEnd() && !words.AtText()) act.index = words.Number();
  if (!words.AtEnd()) act.text = words.Text();
  return act;
}

}  // namespace ng
