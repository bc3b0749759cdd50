#pragma once

#include <cstdint>

namespace ng {

/// A seed that differs from one start of the program to the next.
std::uint32_t RandomSeed();

}  // namespace ng
