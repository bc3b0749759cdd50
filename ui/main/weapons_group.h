#pragma once

class QGroupBox;
class QWidget;

namespace ng {

/// The primary weapon beside the secondary one, and below them what concerns both.
QGroupBox* MakeWeaponsGroup(QWidget* parent);

}  // namespace ng
