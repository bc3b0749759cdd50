#pragma once

class QGroupBox;
class QWidget;

namespace ng {

/// The active skills, what the selected one is to be used for, and the tests without a weapon.
QGroupBox* MakeSkillsGroup(QWidget* parent);

}  // namespace ng
