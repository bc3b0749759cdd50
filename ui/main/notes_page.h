#pragma once

#include "ui/look/layout_kit.h"

namespace ng {

/// The note on the displayed combatant with its file, and the combatant's contacts.
class NotesPage : public FittedPage {
  Q_OBJECT

 public:
  explicit NotesPage(QWidget* parent = nullptr);
};

}  // namespace ng
