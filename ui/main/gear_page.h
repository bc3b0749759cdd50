#pragma once

#include "ui/look/layout_kit.h"

namespace ng {

/// What the displayed combatant carries and wears. A check mark means carried or worn; the
/// highlighted weapon is the one that can be readied.
class GearPage : public FittedPage {
  Q_OBJECT

 public:
  explicit GearPage(QWidget* parent = nullptr);
};

}  // namespace ng
