#pragma once

#include "ui/look/layout_kit.h"

namespace ng {

/// Who the displayed combatant is: attributes, pools on the sheet, race, augments, magic, edges,
/// languages and knowledge.
class PersonPage : public FittedPage {
  Q_OBJECT

 public:
  explicit PersonPage(QWidget* parent = nullptr);
};

}  // namespace ng
