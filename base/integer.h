#pragma once

#include <compare>
#include <concepts>
#include <cstdint>

#include "base/runtime_error.h"

namespace ng {

/// The game's counters and scores: a 16-bit signed integer, -32768 to 32767. Every operation is
/// checked and ends the command with "Overflow" as soon as a result leaves that range, intermediate
/// results included; nothing ever wraps.
class Integer {
 public:
  constexpr Integer() = default;
  /// Throws Overflow outside the range. Implicit, so that literals read as they do in the rules.
  constexpr Integer(int value)  // NOLINT(google-explicit-constructor)
      : value_(static_cast<std::int16_t>(value)) {
    if (value_ != value) ThrowOverflow();
  }

  constexpr int Value() const { return value_; }

  constexpr Integer& operator+=(Integer other) { return *this = *this + other; }
  constexpr Integer& operator-=(Integer other) { return *this = *this - other; }

  friend constexpr Integer operator+(Integer a, Integer b) { return {a.value_ + b.value_}; }
  friend constexpr Integer operator-(Integer a, Integer b) { return {a.value_ - b.value_}; }
  friend constexpr Integer operator*(Integer a, Integer b) { return {a.value_ * b.value_}; }
  friend constexpr bool operator==(Integer a, Integer b) = default;
  friend constexpr auto operator<=>(Integer a, Integer b) { return a.value_ <=> b.value_; }

 private:
  std::int16_t value_ = 0;
};

/// `value`, but no less than `bound`.
constexpr Integer AtLeast(Integer value, Integer bound) { return value < bound ? bound : value; }

/// `value`, but no more than `bound`.
constexpr Integer AtMost(Integer value, Integer bound) { return value > bound ? bound : value; }

/// A flag of the fight: -1 is true, 0 is false, and every test asks for exactly -1, so that a
/// stored 1 counts as false.
class Boolean {
 public:
  constexpr Boolean() = default;
  /// From a truth value only: a number that slips in here would count as true.
  template <std::same_as<bool> Truth>
  constexpr Boolean(Truth value)  // NOLINT(google-explicit-constructor)
      : raw_(value ? std::int16_t{-1} : std::int16_t{0}) {}

  /// Keeps `raw` as it is, for values that come from elsewhere.
  static constexpr Boolean FromRaw(Integer raw) {
    Boolean flag;
    flag.raw_ = static_cast<std::int16_t>(raw.Value());
    return flag;
  }

  constexpr explicit operator bool() const { return raw_ == -1; }
  constexpr int Raw() const { return raw_; }

  friend constexpr bool operator==(Boolean a, Boolean b) = default;

 private:
  std::int16_t raw_ = 0;
};

}  // namespace ng
