#pragma once

#include <array>
#include <cstddef>

#include "base/integer.h"

namespace ng {

/// A table with the indices 0 to `last`; any other index ends the command with "Subscript out of
/// range".
template <typename T, int last>
class FixedTable {
 public:
  static constexpr int kLast = last;

  T& operator[](int index) { return entries_[Checked(index)]; }
  const T& operator[](int index) const { return entries_[Checked(index)]; }
  T& operator[](Integer index) { return entries_[Checked(index.Value())]; }
  const T& operator[](Integer index) const { return entries_[Checked(index.Value())]; }

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
