#pragma once

#include <string>

namespace ng {

/// One thing that the game master did: the control and its event, the control's index where it has
/// one (a row, a code, an element of a control array), and a text where there is one.
struct Act {
  std::string control;
  int index = 0;
  std::string text = {};

  friend bool operator==(const Act&, const Act&) = default;
};

}  // namespace ng
