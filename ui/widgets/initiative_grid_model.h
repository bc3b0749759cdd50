#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "tracker/grid.h"

namespace ng {

/// What the grid's view shows: a copy of the grid's rows, which is compared with the new ones so
/// that only what changed is painted. View row 0 is grid row 1, the header row is not among them.
class InitiativeGridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Takes over the rows; returns whether anything changed.
  bool Show(const InitiativeGrid& grid);
  /// The view row in bold, -1 for none.
  void SetShownRow(int row);
  int ShownRow() const { return shownRow_; }

 private:
  void SetRowCount(int rows);

  std::vector<InitiativeGrid::Row> rows_;
  int shownRow_ = -1;
};

}  // namespace ng
