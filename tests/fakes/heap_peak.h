#pragma once

#include <cstddef>

namespace ng {

/// How far the memory taken with `new` rises above what it is when this is made.
class HeapPeak {
 public:
  HeapPeak();
  std::size_t Bytes() const;

 private:
  std::size_t before_;
};

}  // namespace ng
