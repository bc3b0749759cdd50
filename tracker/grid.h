#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/integer.h"
#include "tracker/fight/fight.h"
#include "tracker/turn_status.h"

namespace ng {

/// The initiative grid GridX without the toolkit: one row per order position, coloured by the
/// combatant's state. It shows the order and never changes it.
class InitiativeGrid {
 public:
  static constexpr int kColumns = 3;
  static constexpr std::array<const char*, kColumns> kHeaders = {"Name", "Roll", "PM"};
  static constexpr int kNameColumn = 0;
  static constexpr int kRollColumn = 1;
  static constexpr int kTextColumn = 2;

  using Colour = RowColour;

  struct Row {
    std::array<std::string, kColumns> text;
    std::array<Colour, kColumns> colour{Colour::White, Colour::White, Colour::White};

    friend bool operator==(const Row&, const Row&) = default;
  };

  explicit InitiativeGrid(Fight& fight) : fight_(fight), rows_(1) {}

  /// Rows 1 to the number of combatants; row 0 is the header.
  int RowCount() const { return static_cast<int>(rows_.size()) - 1; }
  /// Subscript out of range for a row that the grid does not have.
  const Row& RowAt(int row) const;
  int CurrentRow() const { return currentRow_; }
  int CurrentColumn() const { return currentColumn_; }

  /// Paint every column of a row. Row 0 is left alone, and so is a row that the grid does not have:
  /// after a removal or a load the remembered green row may be any number.
  void PaintRowWhite(OrderPosition row) { Paint(row, Colour::White); }
  void PaintRowGreen(OrderPosition row);
  void PaintRowYellow(OrderPosition row) { Paint(row, Colour::Yellow); }
  void PaintRowRed(OrderPosition row) { Paint(row, Colour::Red); }

  /// Writes all rows again. Of a row's colours the last that applies wins: red beats yellow beats
  /// green. The current cell stays in its row.
  void RefreshGrid();

  /// Moves the current cell; out-of-range values are held at the grid's edge.
  void SetCurrent(int row, int column);
  /// Moves the current cell to the row that its combatant has in a new order, so that what is typed
  /// next goes to the same combatant. Where that one is gone, the cell stays in its row.
  void FollowCombatant();

  /// Edits the current cell in place by a typed character. Only cells outside the header row and
  /// the name column can be edited. Returns whether the cell's text changed.
  bool TypeCharacter(int code);
  /// Gives the current cell the text that it had before anything was typed into it, until the
  /// cell is left or something else is written there. Returns whether the text changed.
  bool RestoreText();

 private:
  void Paint(OrderPosition row, Colour colour);
  void TakeCurrentSlot();
  bool Edit(int code);
  std::string& CurrentText();

  Fight& fight_;
  std::vector<Row> rows_;
  int currentRow_ = 0;
  int currentColumn_ = 0;
  /// The combatant in the current row, 0 for none.
  Slot currentSlot_ = 0;
  /// The current cell's text from before it was typed into.
  std::optional<std::string> textBefore_;
  /// The row that typing edited last; a first character there replaces the text.
  int lastEditedRow_ = 0;
};

}  // namespace ng
