#pragma once

#include <compare>

#include "base/integer.h"

namespace ng {

/// The index of one kind of table, a 16-bit number that is checked as Integer is. The compiler
/// keeps the indices of different kinds apart: only a literal turns into one by itself
/// (`Players[1]`, `slot == 0`), every number that is worked out says with From what it becomes.
/// Outside its table an index may hold any 16-bit number; it is the table that refuses it.
template <class Tag>
class Index {
 public:
  constexpr Index() = default;
  consteval Index(int literal)  // NOLINT(google-explicit-constructor)
      : number_(literal) {}
  /// Overflow outside the 16-bit range.
  static constexpr Index From(Integer number) {
    Index index;
    index.number_ = number;
    return index;
  }

  constexpr int Value() const { return number_.Value(); }

  constexpr Index& operator++() {
    number_ += 1;
    return *this;
  }

  friend constexpr bool operator==(Index a, Index b) = default;
  friend constexpr auto operator<=>(Index a, Index b) { return a.number_ <=> b.number_; }

 private:
  Integer number_;
};

/// Every index from `first` to `last`, none when `last` is smaller; for loops over a part of a
/// table.
template <class Key>
class IndexRange {
 public:
  class Iterator {
   public:
    constexpr explicit Iterator(int number) : number_(number) {}
    constexpr Key operator*() const { return Key::From(number_); }
    constexpr Iterator& operator++() {
      ++number_;
      return *this;
    }
    friend constexpr bool operator==(Iterator a, Iterator b) = default;

   private:
    int number_;
  };

  constexpr IndexRange(Key first, Key last)
      : first_(first.Value()), end_(last < first ? first.Value() : last.Value() + 1) {}

  constexpr Iterator begin() const { return Iterator(first_); }
  constexpr Iterator end() const { return Iterator(end_); }

 private:
  int first_;
  int end_;
};

}  // namespace ng
