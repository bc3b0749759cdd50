#pragma once

#include "ui/wiring/acts.h"

class QGroupBox;
class QStackedWidget;

namespace ng {

/// The left half of the dice roller.
struct ModifiersGroup {
  QGroupBox* group;
  /// In the order of the tabs.
  QStackedWidget* pages;
};

/// For each page of the roller the base number, the modifiers that come from the combatant, the
/// lists of visibility and movement, and a row for every caption; below them the sum. The boxes are
/// filled by the painter, by their names.
ModifiersGroup MakeModifiersGroup(const Perform& perform, QWidget* parent);

}  // namespace ng
