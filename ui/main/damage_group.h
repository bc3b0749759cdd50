#pragma once

class QGroupBox;
class QWidget;

namespace ng {

/// Both damage tracks with their buttons, the wound modifier, the overflow and pain resistance.
QGroupBox* MakeDamageGroup(QWidget* parent);

}  // namespace ng
