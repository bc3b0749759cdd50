#include "base/code_page.h"

#include <array>
#include <cstddef>

namespace ng {
namespace {

/// The bytes 0x80 to 0x9F, where the code page differs from Latin-1.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Takes one character off the front of `rest`; 0xFFFD for bytes that are no UTF-8.
char32_t TakeCodePoint(std::string_view& rest) {
  constexpr char32_t kBad = 0xFFFD;
  const auto lead = static_cast<unsigned char>(rest.front());
  rest.remove_prefix(1);
  if (lead < 0x80) return lead;
  std::size_t following = 1;
  char32_t codePoint = lead & 0x1FU;
  if (lead >= 0xF0) {
    following = 3;
    codePoint = lead & 0x07U;
  } else if (lead >= 0xE0) {
    following = 2;
    codePoint = lead & 0x0FU;
  } else if (lead < 0xC0) {
    return kBad;
  }
  for (; following > 0; --following) {
    if (rest.empty() || (static_cast<unsigned char>(rest.front()) & 0xC0U) != 0x80U) return kBad;
    codePoint = (codePoint << 6U) | (static_cast<unsigned char>(rest.front()) & 0x3FU);
    rest.remove_prefix(1);
  }
  return codePoint;
}

}  // namespace

char32_t CodePointOf(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  if (value < 0x80 || value > 0x9F) return value;
  return kHighControls[value - 0x80U];
}

char ByteOf(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint > 0x9F && codePoint <= 0xFF)) {
    return static_cast<char>(static_cast<unsigned char>(codePoint));
  }
  for (std::size_t i = 0; i < kHighControls.size(); ++i) {
    if (kHighControls[i] == codePoint)
      return static_cast<char>(static_cast<unsigned char>(0x80 + i));
  }
  return '?';
}

bool InCodePage(char32_t codePoint) { return codePoint == U'?' || ByteOf(codePoint) != '?'; }

std::string ToUtf8(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const char byte : text) {
    const char32_t codePoint = CodePointOf(byte);
    if (codePoint < 0x80) {
      result += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
      result += static_cast<char>(0xC0U | (codePoint >> 6U));
      result += static_cast<char>(0x80U | (codePoint & 0x3FU));
    } else {
      result += static_cast<char>(0xE0U | (codePoint >> 12U));
      result += static_cast<char>(0x80U | ((codePoint >> 6U) & 0x3FU));
      result += static_cast<char>(0x80U | (codePoint & 0x3FU));
    }
  }
  return result;
}

std::string FromUtf8(std::string_view utf8) {
  std::string result;
  result.reserve(utf8.size());
  while (!utf8.empty()) result += ByteOf(TakeCodePoint(utf8));
  return result;
}

}  // namespace ng
