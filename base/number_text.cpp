#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/text.h"

namespace ng {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr std::array<double, 16> kPowersOfTen = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// Digits with or without a point among them, and nothing else: nearly every number of a file. Up
/// to 15 digits and their power of ten are exact in binary, so that the one division rounds as
/// from_chars does, in a fraction of its time.
bool ReadPlainDecimal(std::string_view text, double& value) {
  if (text.size() >= kPowersOfTen.size()) return false;
  std::int64_t digits = 0;
  std::size_t decimals = 0;
  bool point = false;
  for (const char c : text) {
    if (c == '.' && !point) {
      point = true;
      continue;
    }
    if (!IsDigit(c)) return false;
    digits = digits * 10 + (c - '0');
    if (point) ++decimals;
  }
  value = static_cast<double>(digits) / kPowersOfTen[decimals];
  return true;
}

/// Of a number that does not fit: whether it is too small and not too large.
bool IsTooSmall(std::string_view number) {
  if (number.find_first_of("eE") != std::string_view::npos) return Contains(number, "-");
  return number.find_first_not_of('0') == number.find('.');
}

}  // namespace

double RoundHalfEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest != 0.5) return rest < 0.5 ? below : below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

Integer ToInteger(double value) {
  const double rounded = RoundHalfEven(value);
  if (!(rounded >= -32768 && rounded <= 32767)) ThrowOverflow();
  return {static_cast<int>(rounded)};
}

double LeadingNumber(std::string_view text) {
  text = TrimmedLeft(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  // from_chars would also take a second sign, "inf" and "nan"; none of them is a number here.
  const bool digits = !text.empty() && IsDigit(text[0]);
  const bool point = text.size() > 1 && text[0] == '.' && IsDigit(text[1]);
  if (!digits && !point) return 0;
  double value = 0;
  if (ReadPlainDecimal(text, value)) return negative ? -value : value;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    // Too small to hold is 0; too large ends in Overflow where the number is used.
    const std::string_view number(text.data(), static_cast<std::size_t>(result.ptr - text.data()));
    value = IsTooSmall(number) ? 0 : std::numeric_limits<double>::infinity();
  }
  return negative ? -value : value;
}

Integer LenientInteger(std::string_view text) { return ToInteger(LeadingNumber(text)); }

std::int32_t LenientLong(std::string_view text) {
  const double rounded = RoundHalfEven(LeadingNumber(text));
  if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
        rounded <= std::numeric_limits<std::int32_t>::max())) {
    ThrowOverflow();
  }
  return static_cast<std::int32_t>(rounded);
}

bool IsWholeNumber(std::string_view text) {
  text = Trimmed(text);
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  return !text.empty() && std::ranges::all_of(text, IsDigit);
}

Integer StrictInteger(std::string_view text) {
  if (!IsWholeNumber(text)) throw RuntimeError(ErrorNumber::TypeMismatch);
  return LenientInteger(text);
}

std::string PlainText(double value) {
  std::array<char, 40> buffer{};
  // No game master expects "-0".
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                    value == 0 ? 0.0 : value, std::chars_format::general, 15);
  return {buffer.data(), result.ptr};
}

std::string PlainText(Integer value) { return std::to_string(value.Value()); }

std::string PrintForm(std::int32_t value) {
  std::string text(value < 0 ? "" : " ");
  return text.append(std::to_string(value)).append(" ");
}

std::string PrintForm(Integer value) { return PrintForm(std::int32_t{value.Value()}); }

std::string TwoDecimals(double value) {
  // Weights are decimal fractions such as 2.345 that binary numbers hold a hair too small; taking
  // six decimals first lets their halves round as written.
  const double hundredths = std::round(std::round(value * 1e6) / 1e4);
  std::array<char, 400> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                    std::fabs(hundredths) / 100, std::chars_format::fixed, 2);
  std::string text(buffer.data(), result.ptr);
  if (text.starts_with("0.")) text.erase(0, 1);
  return hundredths < 0 ? "-" + text : text;
}

std::string SignedText(Integer value) { return (value < 0 ? "" : "+") + PlainText(value); }

}  // namespace ng
