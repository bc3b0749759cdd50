#pragma once

#include <string>

namespace ng {

class InitiativeGrid;

// What a widget of our own takes from its form, where the toolkit's widgets have nothing like it.
// The binder knows such a widget by these alone.

class ShowsText {
 public:
  virtual ~ShowsText() = default;
  virtual void ShowText(const std::string& text) = 0;
};

class ShowsLevel {
 public:
  virtual ~ShowsLevel() = default;
  /// Filled boxes of a damage track.
  virtual void ShowLevel(int boxes) = 0;
};

class ShowsGrid {
 public:
  virtual ~ShowsGrid() = default;
  /// `shownRow` is the row of the displayed combatant, 1 for the first, 0 for none.
  virtual void ShowGrid(const InitiativeGrid& grid, int shownRow) = 0;
};

}  // namespace ng
