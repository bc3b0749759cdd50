#pragma once

#include <QTableView>

#include "tracker/grid.h"
#include "ui/widgets/initiative_grid_model.h"
#include "ui/wiring/acts.h"
#include "ui/wiring/shows.h"

namespace ng {

/// The initiative grid GridX. It shows and never edits by itself: keys and clicks become acts, and
/// the current cell is where the form says. The displayed combatant's row has a black frame and
/// bold text instead of a selection fill, so that its colour stays visible.
class InitiativeGridView : public QTableView, public ShowsGrid {
  Q_OBJECT

 public:
  explicit InitiativeGridView(Perform perform, QWidget* parent = nullptr);

  void ShowGrid(const InitiativeGrid& grid, int shownRow) override;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void ShowRows(const InitiativeGrid& grid);
  void SetShownRow(int row);
  /// Sizes the columns to their contents, down to a least width; the name takes what is left.
  void AutoSizeGrid();
  /// Makes the rows lower before they begin to scroll.
  void FitRows();
  int ContentWidth(int column) const;
  /// Has the tooltip say what is below the mouse now.
  void ShowTip();
  bool MoveCell(const QKeyEvent& event);
  bool Type(const QKeyEvent& event);
  void PaintHint(QPainter& painter) const;
  void PaintFrames(QPainter& painter) const;

  Perform perform_;
  InitiativeGridModel model_;
  /// The current cell as the form has it: row 0 is the header row.
  int currentRow_ = 0;
  int currentColumn_ = 0;
};

}  // namespace ng
