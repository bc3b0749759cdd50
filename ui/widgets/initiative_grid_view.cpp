#include "ui/widgets/initiative_grid_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <array>

#include "base/code_page.h"
#include "ui/look/theme.h"
#include "ui/wiring/code_page_input.h"

namespace ng {
namespace {

constexpr int kHighestRow = 25;
constexpr int kLowestRow = 21;
constexpr int kHeaderHeight = 22;
constexpr int kCellPadding = 8;
constexpr int kEnter = 13;
constexpr int kBackspace = 8;
constexpr std::array<int, InitiativeGrid::kColumns> kLeastWidths = {0, 56, 52};
constexpr std::array<const char*, InitiativeGrid::kColumns> kCellActs = {"GridX_Name", "GridX_Roll",
                                                                         "GridX_PM"};

/// The colours of the rows never change, and neither do the lines between them.
constexpr QColor kGridLine(0xB6, 0xBC, 0xC6);

/// Paints a cell without the style's focus tint, which would change the row's colour.
class CellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem plain = option;
    plain.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    QStyledItemDelegate::paint(painter, plain, index);
    painter->setPen(kGridLine);
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
  }
};

bool IsEscape(const QKeyEvent& event) {
  return event.key() == Qt::Key_Escape && event.modifiers() == Qt::NoModifier;
}

bool IsEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

}  // namespace

InitiativeGridView::InitiativeGridView(Perform perform, QWidget* parent)
    : QTableView(parent), perform_(std::move(perform)) {
  setObjectName(QStringLiteral("GridX"));
  setAccessibleName("Combatants in initiative order");
  setModel(&model_);
  setItemDelegate(new CellDelegate(this));
  setShowGrid(false);
  setSelectionMode(QAbstractItemView::NoSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(kLowestRow);
  verticalHeader()->setDefaultSectionSize(kHighestRow);
  QHeaderView* header = horizontalHeader();
  header->setFixedHeight(kHeaderHeight);
  header->setHighlightSections(false);
  header->setSectionsClickable(false);
  header->setMinimumSectionSize(20);
  header->setSectionResizeMode(QHeaderView::Fixed);
  header->setSectionResizeMode(InitiativeGrid::kNameColumn, QHeaderView::Stretch);
  AutoSizeGrid();
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
    perform_({"GridX_Click", index.row() + 1, {}});
  });
}

void InitiativeGridView::ShowGrid(const InitiativeGrid& grid, int shownRow) {
  ShowRows(grid);
  SetShownRow(shownRow);
}

void InitiativeGridView::ShowRows(const InitiativeGrid& grid) {
  if (model_.Show(grid)) {
    AutoSizeGrid();
    FitRows();
    ShowTip();
  }
  const bool moved = currentRow_ != grid.CurrentRow() || currentColumn_ != grid.CurrentColumn();
  currentRow_ = grid.CurrentRow();
  currentColumn_ = grid.CurrentColumn();
  const QModelIndex current = model_.index(currentRow_ - 1, currentColumn_);
  if (currentIndex() != current) {
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  }
  if (moved) viewport()->update();
}

void InitiativeGridView::SetShownRow(int row) {
  if (model_.ShownRow() == row - 1) return;
  model_.SetShownRow(row - 1);
  AutoSizeGrid();
  if (row > 0) scrollTo(model_.index(row - 1, InitiativeGrid::kRollColumn));
  viewport()->update();
}

int InitiativeGridView::ContentWidth(int column) const {
  // The displayed row is bold, and any row can become that.
  const QFontMetrics metrics(InterfaceFont(11, true));
  int width = 0;
  for (int row = 0; row < model_.rowCount(); ++row) {
    const QString text = model_.data(model_.index(row, column), Qt::DisplayRole).toString();
    width = std::max(width, metrics.horizontalAdvance(text));
  }
  return width + kCellPadding;
}

void InitiativeGridView::AutoSizeGrid() {
  for (const int column : {InitiativeGrid::kRollColumn, InitiativeGrid::kTextColumn}) {
    const int least = kLeastWidths[static_cast<std::size_t>(column)];
    const int width = std::max(least, ContentWidth(column));
    if (columnWidth(column) != width) setColumnWidth(column, width);
  }
}

void InitiativeGridView::FitRows() {
  const int rows = std::max(1, model_.rowCount());
  const int height = std::clamp(viewport()->height() / rows, kLowestRow, kHighestRow);
  if (verticalHeader()->defaultSectionSize() != height) {
    verticalHeader()->setDefaultSectionSize(height);
  }
}

void InitiativeGridView::ShowTip() {
  if (!QToolTip::isVisible() || !viewport()->underMouse()) return;
  const QPoint mouse = QCursor::pos();
  const QString tip = indexAt(viewport()->mapFromGlobal(mouse)).data(Qt::ToolTipRole).toString();
  if (QToolTip::text() != tip) QToolTip::showText(mouse, tip, viewport());
}

bool InitiativeGridView::event(QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return QTableView::event(event);
  // Elsewhere in the window this key goes to the grid; here it takes back what was typed.
  const bool own = IsEscape(static_cast<const QKeyEvent&>(*event));
  if (own) event->accept();
  return own || QTableView::event(event);
}

void InitiativeGridView::keyPressEvent(QKeyEvent* event) {
  if (IsEscape(*event)) perform_({"GridX_Restore"});
  if (MoveCell(*event) || Type(*event)) {
    // A step or the wheel may have moved the cell out of sight.
    scrollTo(currentIndex());
    event->accept();
    return;
  }
  event->ignore();
}

bool InitiativeGridView::MoveCell(const QKeyEvent& event) {
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  int row = currentRow_;
  int column = currentColumn_;
  const int page = std::max(1, viewport()->height() / verticalHeader()->defaultSectionSize() - 1);
  switch (event.key()) {
    case Qt::Key_Up:
      row -= 1;
      break;
    case Qt::Key_Down:
      row += 1;
      break;
    case Qt::Key_PageUp:
      row -= page;
      break;
    case Qt::Key_PageDown:
      row += page;
      break;
    case Qt::Key_Home:
      row = 1;
      break;
    case Qt::Key_End:
      row = model_.rowCount();
      break;
    case Qt::Key_Left:
      column -= 1;
      break;
    case Qt::Key_Right:
      column += 1;
      break;
    default:
      return false;
  }
  if (model_.rowCount() == 0) return true;
  row = std::clamp(row, 1, model_.rowCount());
  column = std::clamp(column, 0, InitiativeGrid::kColumns - 1);
  perform_({kCellActs[static_cast<std::size_t>(column)], row, {}});
  return true;
}

bool InitiativeGridView::Type(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  const bool control = modifiers.testFlag(Qt::ControlModifier);
  if (control && IsEnter(event.key())) {
    perform_({"GridX_Click", currentRow_, {}});
    return true;
  }
  // Control and Alt together type a character on some keyboards; one of them alone never does.
  if (control != modifiers.testFlag(Qt::AltModifier) || (modifiers & Qt::MetaModifier))
    return false;
  if (IsEnter(event.key())) {
    perform_({"GridX_KeyPress", kEnter, {}});
    return true;
  }
  if (event.key() == Qt::Key_Backspace) {
    perform_({"GridX_KeyPress", kBackspace, {}});
    return true;
  }
  if (event.text().isEmpty() || !event.text().front().isPrint()) return false;
  for (const char32_t character : event.text().toUcs4()) {
    if (InCodePage(character)) {
      perform_({"GridX_KeyPress", static_cast<unsigned char>(ByteOf(character)), {}});
    } else {
      perform_({kLeftOutAct});
    }
  }
  return true;
}

void InitiativeGridView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  QPainter painter(viewport());
  if (model_.rowCount() == 0) {
    PaintHint(painter);
  } else {
    PaintFrames(painter);
  }
}

void InitiativeGridView::PaintHint(QPainter& painter) const {
  painter.setFont(InterfaceFont(10));
  painter.setPen(Theme::Current().muted);
  painter.drawText(viewport()->rect().adjusted(14, 17, -4, 0), Qt::AlignLeft | Qt::AlignTop,
                   "No combatants yet.\nImport characters with\nOpen (Ctrl+O), or load\n"
                   "a saved fight with\nFile \u203a Load State (Ctrl+L).\n"
                   "You can also drop files here.\n\nPress F1 to see how a turn works.");
}

void InitiativeGridView::PaintFrames(QPainter& painter) const {
  if (model_.ShownRow() >= 0 && model_.ShownRow() < model_.rowCount()) {
    const QRect first = visualRect(model_.index(model_.ShownRow(), 0));
    const QRect frame(0, first.top(), viewport()->width(), first.height());
    painter.setPen(QPen(Qt::black, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(frame.adjusted(1, 1, -1, -1));
  }
  const QModelIndex current = model_.index(currentRow_ - 1, currentColumn_);
  if (!hasFocus() || !current.isValid()) return;
  painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
  painter.drawRect(visualRect(current).adjusted(3, 3, -4, -4));
}

void InitiativeGridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FitRows();
}

void InitiativeGridView::focusInEvent(QFocusEvent* event) {
  // The base class would choose a current cell of its own.
  QAbstractScrollArea::focusInEvent(event);  // NOLINT(bugprone-parent-virtual-call)
  viewport()->update();
}

void InitiativeGridView::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);  // NOLINT(bugprone-parent-virtual-call)
  viewport()->update();
}

}  // namespace ng
