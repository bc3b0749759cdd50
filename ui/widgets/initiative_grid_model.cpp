#include "ui/widgets/initiative_grid_model.h"

#include <array>

#include "ui/look/row_colour.h"
#include "ui/look/theme.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

constexpr std::array<Qt::Alignment, InitiativeGrid::kColumns> kAlignments = {
    Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignRight | Qt::AlignVCenter,
    Qt::AlignHCenter | Qt::AlignVCenter};

QVariant AlignmentOf(int column) {
  return QVariant::fromValue(kAlignments[static_cast<std::size_t>(column)]);
}

/// What is read aloud: the name says in words what its colour says.
QString SpokenName(const InitiativeGrid::Row& row) {
  QString name = ToQString(row.text[InitiativeGrid::kNameColumn]);
  const RowColour colour = row.colour[InitiativeGrid::kNameColumn];
  if (colour == RowColour::White) return name;
  return name + QStringLiteral(", ") + ToQString(LookOf(colour).badge);
}

QFont RowFont(bool shown) {
  static const QFont plain = InterfaceFont(11);
  static const QFont bold = InterfaceFont(11, true);
  return shown ? bold : plain;
}

QString TipOf(int column) {
  switch (column) {
    case InitiativeGrid::kNameColumn:
      return "In the order of the net initiative";
    case InitiativeGrid::kRollColumn:
      return "Initiative rolled; the wound modifier comes off it (Net)";
    default:
      return "Condition: stun first, then physical. L light, M moderate, S serious, D deadly, 0 "
             "none";
  }
}

}  // namespace

int InitiativeGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int InitiativeGridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : InitiativeGrid::kColumns;
}

QVariant InitiativeGridModel::data(const QModelIndex& index, int role) const {
  const InitiativeGrid::Row& row = rows_[static_cast<std::size_t>(index.row())];
  const auto column = static_cast<std::size_t>(index.column());
  switch (role) {
    case Qt::DisplayRole:
      return ToQString(row.text[column]);
    case Qt::AccessibleTextRole:
      return column == InitiativeGrid::kNameColumn ? SpokenName(row) : ToQString(row.text[column]);
    case Qt::ToolTipRole:
      return column == InitiativeGrid::kNameColumn ? ToQString(row.text[column]) : QVariant();
    case Qt::BackgroundRole:
      return ToQColor(row.colour[column]);
    case Qt::ForegroundRole:
      return QColor(Qt::black);
    case Qt::FontRole:
      return RowFont(index.row() == shownRow_);
    case Qt::TextAlignmentRole:
      return AlignmentOf(index.column());
    default:
      return {};
  }
}

QVariant InitiativeGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) {
    return QString::fromLatin1(InitiativeGrid::kHeaders[static_cast<std::size_t>(section)]);
  }
  if (role == Qt::ToolTipRole) return TipOf(section);
  return role == Qt::TextAlignmentRole ? AlignmentOf(section) : QVariant();
}

bool InitiativeGridModel::Show(const InitiativeGrid& grid) {
  bool changed = grid.RowCount() != rowCount();
  SetRowCount(grid.RowCount());
  for (int row = 0; row < rowCount(); ++row) {
    InitiativeGrid::Row& shown = rows_[static_cast<std::size_t>(row)];
    if (shown == grid.RowAt(row + 1)) continue;
    shown = grid.RowAt(row + 1);
    changed = true;
    emit dataChanged(index(row, 0), index(row, InitiativeGrid::kColumns - 1));
  }
  return changed;
}

void InitiativeGridModel::SetRowCount(int rows) {
  const int before = rowCount();
  if (rows > before) {
    beginInsertRows({}, before, rows - 1);
    rows_.resize(static_cast<std::size_t>(rows));
    endInsertRows();
  } else if (rows < before) {
    beginRemoveRows({}, rows, before - 1);
    rows_.resize(static_cast<std::size_t>(rows));
    endRemoveRows();
  }
}

void InitiativeGridModel::SetShownRow(int row) {
  const int before = std::exchange(shownRow_, row);
  if (before == row) return;
  for (const int changed : {before, row}) {
    if (changed < 0 || changed >= rowCount()) continue;
    emit dataChanged(index(changed, 0), index(changed, InitiativeGrid::kColumns - 1));
  }
}

}  // namespace ng
