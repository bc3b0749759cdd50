#include "ui/look/layout_kit.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <algorithm>
#include <cmath>

#include "ui/widgets/elided_label.h"

namespace ng {
namespace {

/// Size of the text where room is scarce.
constexpr double kTightPoints = 9;

constexpr int kLeastListWidth = 64;
constexpr int kLeastListHeight = 48;
constexpr int kLeastListColumn = 24;

void Name(QWidget* widget, const Naming& naming) {
  widget->setObjectName(naming.name);
  widget->setAccessibleName(naming.accessible);
  widget->setToolTip(naming.tip);
}

/// The column that takes what the others leave is the name, which says more than any number.
constexpr int kNameRoom = 150;

/// A list whose columns follow its width.
class ColumnList : public QTreeWidget {
 public:
  ColumnList(std::initializer_list<ListColumn> columns, QWidget* parent)
      : QTreeWidget(parent), columns_(columns) {
    for (const ListColumn& column : columns_) {
      width_ += column.width;
      if (column.leastWidth > 0) give_ += column.width - column.leastWidth;
    }
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTreeWidget::resizeEvent(event);
    if (give_ == 0) return;
    const int wanted = std::clamp(width_ + kNameRoom - viewport()->width(), 0, give_);
    for (int i = 0; i < static_cast<int>(columns_.size()); ++i) {
      const ListColumn& column = columns_[static_cast<std::size_t>(i)];
      if (column.leastWidth == 0) continue;
      const int taken = (column.width - column.leastWidth) * wanted / give_;
      header()->resizeSection(i, column.width - taken);
    }
  }

 private:
  std::vector<ListColumn> columns_;
  /// Of all columns with a width, and what they can give away.
  int width_ = 0;
  int give_ = 0;
};

void AddColumn(QTreeWidget* list, int index, const ListColumn& column) {
  QHeaderView* header = list->header();
  list->headerItem()->setText(index, column.title);
  list->headerItem()->setTextAlignment(index, column.alignment | Qt::AlignVCenter);
  if (column.width == 0) {
    header->setSectionResizeMode(index, QHeaderView::Stretch);
  } else {
    header->setSectionResizeMode(index, QHeaderView::Interactive);
    header->resizeSection(index, column.width);
  }
}

/// A label of one line. It asks for its size without laying its text out, which QLabel does three
/// times over.
class CaptionLabel : public QLabel {
 public:
  using QLabel::QLabel;

  QSize sizeHint() const override {
    ensurePolished();
    // The mnemonic's "&" takes no room; a last letter that leans to the right does.
    const QString shown = text().remove(u'&');
    const QFontMetricsF metrics(font(), this);
    const qreal bearing = shown.isEmpty() ? 0 : metrics.rightBearing(shown.back());
    const qreal width = metrics.horizontalAdvance(shown) - std::min(0.0, bearing);
    const QSize words(static_cast<int>(std::ceil(width)), fontMetrics().height());
    return words.grownBy(contentsMargins());
  }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

/// Makes the layout forget what everything in it needs, as it would do itself only when events are
/// handled. Nothing is arranged.
void AskSizesAnew(QLayout& layout) {
  for (int i = 0; i < layout.count(); ++i) {
    QLayoutItem* item = layout.itemAt(i);
    QWidget* widget = item->widget();
    QLayout* inner = widget != nullptr ? widget->layout() : item->layout();
    if (inner != nullptr) AskSizesAnew(*inner);
    if (widget != nullptr) widget->updateGeometry();
  }
  layout.invalidate();
}

}  // namespace

QString ElementName(const char* name, int index) {
  return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index);
}

QString TipWithKey(const QString& tip, const QString& key) {
  return QStringLiteral("%1 (%2)").arg(tip, key);
}

QGroupBox* MakeGroup(const QString& title, QWidget* parent) { return new QGroupBox(title, parent); }

QVBoxLayout* MakeGroupRows(QGroupBox* group) {
  auto* rows = new QVBoxLayout(group);
  rows->setContentsMargins(kGroupPadding, kGroupPadding + 2, kGroupPadding, kGroupPadding - 2);
  rows->setSpacing(kRowGap);
  return rows;
}

QVBoxLayout* MakeTightRows(QGroupBox* group) {
  QVBoxLayout* rows = MakeGroupRows(group);
  rows->setContentsMargins(kGroupPadding - 1, kGroupPadding, kGroupPadding - 1, kGroupPadding - 4);
  return rows;
}

QHBoxLayout* MakeRow(int gap) {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(gap);
  return row;
}

QVBoxLayout* MakeColumn() {
  auto* column = new QVBoxLayout;
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGroupGap);
  return column;
}

QFrame* MakeLine(Qt::Orientation orientation, QWidget* parent) {
  auto* line = new QFrame(parent);
  if (orientation == Qt::Horizontal) {
    line->setFrameShape(QFrame::HLine);
    line->setFixedHeight(1);
  } else {
    line->setFrameShape(QFrame::VLine);
    line->setFixedWidth(1);
  }
  return line;
}

QLabel* MakeCaption(const QString& text, QWidget* parent) {
  auto* label = new CaptionLabel(text, parent);
  label->setProperty("tone", "muted");
  return label;
}

QLabel* MakeValue(const QString& name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  Embolden(label);
  return label;
}

ElidedLabel* MakeElided(const QString& name, QWidget* parent) {
  auto* label = new ElidedLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  return label;
}

QLineEdit* MakeBox(const Naming& naming, int width, QWidget* parent) {
  auto* box = new QLineEdit(parent);
  Name(box, naming);
  box->setAlignment(Qt::AlignCenter);
  box->setFixedSize(width, kBoxHeight);
  return box;
}

QCheckBox* MakeCheck(const Naming& naming, const QString& text, QWidget* parent) {
  auto* check = new QCheckBox(text, parent);
  Name(check, naming);
  return check;
}

QPushButton* MakeButton(const Naming& naming, const QString& text, QWidget* parent) {
  auto* button = new QPushButton(text, parent);
  Name(button, naming);
  button->setAutoDefault(false);
  button->setMinimumSize(kSmallButtonWidth, kSmallButtonHeight);
  return button;
}

void Embolden(QWidget* widget) {
  QFont font = widget->font();
  font.setBold(true);
  widget->setFont(font);
}

QTreeWidget* MakeList(const Naming& naming, std::initializer_list<ListColumn> columns,
                      QWidget* parent) {
  auto* list = new ColumnList(columns, parent);
  Name(list, naming);
  list->setColumnCount(static_cast<int>(columns.size()));
  list->setRootIsDecorated(false);
  list->setItemsExpandable(false);
  list->setUniformRowHeights(true);
  list->setAllColumnsShowFocus(true);
  list->setMinimumSize(kLeastListWidth, kLeastListHeight);
  list->header()->setStretchLastSection(false);
  list->header()->setMinimumSectionSize(kLeastListColumn);
  list->header()->setSectionsClickable(false);
  int index = 0;
  bool titled = false;
  for (const ListColumn& column : columns) {
    AddColumn(list, index++, column);
    titled = titled || !column.title.isEmpty();
  }
  list->setHeaderHidden(!titled);
  list->setAlternatingRowColors(titled);
  return list;
}

QTreeWidget* MakePlainList(const Naming& naming, QWidget* parent) {
  return MakeList(naming, {ListColumn{}}, parent);
}

QSize FittedPage::minimumSizeHint() const { return tight_; }

QSize FittedPage::sizeHint() const { return tight_; }

void FittedPage::MeasureText() {
  roomy_ = NeededWith(kTextPoints);
  tight_ = NeededWith(kTightPoints);
}

void FittedPage::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (!tight_.isValid()) {
    MeasureText();
    updateGeometry();
  }
  const bool roomy = width() >= roomy_.width() && height() >= roomy_.height();
  SetText(roomy ? kTextPoints : kTightPoints);
}

QSize FittedPage::NeededWith(double points) {
  SetText(points);
  AskSizesAnew(*layout());
  return layout()->totalMinimumSize();
}

void FittedPage::SetText(double points) {
  if (font().pointSizeF() == points) return;
  // What has a size of its own, the names and totals, keeps it.
  QFont text = font();
  text.setPointSizeF(points);
  setFont(text);
}

}  // namespace ng
