#pragma once

#include <array>
#include <concepts>
#include <cstddef>

#include "base/integer.h"

namespace ng {

/// A table with the indices 0 to `last`; any other index ends the command with "Subscript out of
/// range". A table of a `Key` of its own takes no other kind of index.
template <typename T, int last, typename Key = Integer>
class FixedTable {
 public:
  static constexpr int kLast = last;

  T& operator[](Key index) { return entries_[Checked(index.Value())]; }
  const T& operator[](Key index) const { return entries_[Checked(index.Value())]; }
  T& operator[](int index) requires std::same_as<Key, Integer> { return entries_[Checked(index)]; }
  const T& operator[](int index) const requires std::same_as<Key, Integer> {
    return entries_[Checked(index)];
  }

  auto begin() { return entries_.begin(); }
  auto end() { return entries_.end(); }
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

  friend bool operator==(const FixedTable&, const FixedTable&) = default;

 private:
  static std::size_t Checked(int index) {
    if (index < 0 || index > last) ThrowSubscript();
    return static_cast<std::size_t>(index);
  }

  std::array<T, static_cast<std::size_t>(last) + 1> entries_{};
};

}  // namespace ng
