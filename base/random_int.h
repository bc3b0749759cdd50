#pragma once

#include "base/integer.h"
#include "base/ports.h"

namespace ng {

/// A random number from 1 to `n`: the uniform value times 2,000,000,000, rounded to the nearest
/// whole number with halves to even, modulo n, plus 1. This two-step mapping, not a plain scaling
/// by n, is the game's die: seeded fights depend on it.
Integer RandomInt(Uniform& uniform, Integer n);

}  // namespace ng
