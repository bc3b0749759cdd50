#pragma once

namespace ng {

/// Place and size of the main window, in twips (1/20 of a point, 15 to a pixel).
struct WindowLayout {
  int MainLeft = 1000;
  int MainTop = 1000;
  int MainWidth = 6500;
  int MainHeight = 6500;
};

}  // namespace ng
