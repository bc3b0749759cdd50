#pragma once

#include <QColor>

#include "tracker/turn_status.h"

namespace ng {

inline QColor ToQColor(RowColour colour) {
  const int number = static_cast<int>(colour);
  return QColor(number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF);
}

}  // namespace ng
