#pragma once

#include "base/integer.h"
#include "base/ports.h"

namespace ng {

/// One open-ended die, with every re-roll of its 6s.
struct DieRoll {
  /// 1 to 5, 7 to 11, 13 to 17 and so on; never a multiple of 6, since a 6 always rolls on.
  Integer total;
  /// Every face shown was a 1, re-rolled faces included.
  bool allOnes = false;
};

/// A face, 1 to 6.
Integer RollFace(Uniform& uniform);

/// Rolls a die, and again as long as it shows a 6, adding up the faces. Overflow when the total
/// leaves the 16-bit range.
DieRoll RollOpenEnded(Uniform& uniform);

}  // namespace ng
