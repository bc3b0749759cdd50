#pragma once

#include "ui/look/layout_kit.h"

class QGroupBox;

namespace ng {

/// What the game master does for the displayed combatant: damage, weapons, pools, skills. It never
/// scrolls.
class CombatPage : public FittedPage {
  Q_OBJECT

 public:
  explicit CombatPage(QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QGroupBox* note_;
};

}  // namespace ng
