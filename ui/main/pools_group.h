#pragma once

class QGroupBox;
class QWidget;

namespace ng {

/// The five dice pools, each a box between a button that takes a die and one that adds one.
QGroupBox* MakePoolsGroup(QWidget* parent);

}  // namespace ng
