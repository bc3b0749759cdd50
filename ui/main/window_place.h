#pragma once

#include <QRect>
#include <QSize>

#include "app/window_layout.h"

namespace ng {

/// The least size of the main window, in device-independent pixels.
constexpr QSize kLeastWindow(1024, 700);

/// Where the main window opens: as it was kept, held within `available`, the usable part of its
/// screen. A kept size below the least, as before the first start, means the usual size.
QRect OpeningPlace(const WindowLayout& layout, const QRect& available);

/// The point on the screen that tells which screen the window was on.
QPoint KeptCentre(const WindowLayout& layout);

/// What is kept of a place.
WindowLayout KeptLayout(const QRect& place);

}  // namespace ng
