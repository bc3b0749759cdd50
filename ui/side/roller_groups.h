#pragma once

class QGroupBox;
class QWidget;

namespace ng {

// The right half of the dice roller. The boxes are filled by the painter, by their names.

/// Number of dice, target number, combat pool, the odds, and the roll itself.
QGroupBox* MakeDiceGroup(QWidget* parent);

/// What came of the roll.
QGroupBox* MakeResultGroup(QWidget* parent);

}  // namespace ng
