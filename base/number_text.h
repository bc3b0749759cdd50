#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/integer.h"

namespace ng {

/// Rounds to the nearest whole number, a half to the even neighbour (2.5 gives 2, 3.5 gives 4).
double RoundHalfEven(double value);

/// The rules' conversion of a number to a 16-bit integer: half-even, Overflow outside the range.
Integer ToInteger(double value);

/// The lenient reading: the leading numeric part of `text` after blanks and tabs (sign, digits,
/// decimal point, exponent), 0 when there is none. Never fails.
double LeadingNumber(std::string_view text);

/// The lenient reading of a 16-bit integer. Overflow outside the range.
Integer LenientInteger(std::string_view text);

/// The lenient reading of a 32-bit integer. Overflow outside the range.
std::int32_t LenientLong(std::string_view text);

/// Whether `text`, apart from blanks round it, is a whole number: digits, with or without a sign.
bool IsWholeNumber(std::string_view text);

/// The strict reading: apart from blanks round it the whole text must be a whole number, otherwise
/// "Type mismatch"; Overflow outside the 16-bit range.
Integer StrictInteger(std::string_view text);

/// A number as labels show it: no blanks, no trailing zeros, at most 15 significant digits.
std::string PlainText(double value);
std::string PlainText(Integer value);

/// A number as it is written to files: a blank before one that is not negative, and a blank after
/// it.
std::string PrintForm(std::int32_t value);
std::string PrintForm(Integer value);

/// A weight (in kilograms) with exactly two decimals and no zero before the point: ".00", "17.40".
/// Halves of the third decimal go away from zero.
std::string TwoDecimals(double value);

/// A target-number modifier as the panels show it: "+" before a value of 0 or more.
std::string SignedText(Integer value);

}  // namespace ng
