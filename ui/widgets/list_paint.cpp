#include "ui/widgets/list_paint.h"

#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <algorithm>

#include "ui/wiring/text.h"

namespace ng {
namespace {

void ShowLine(QTreeWidgetItem& item, const QTreeWidget& tree, const std::string& line) {
  const int columns = tree.columnCount();
  QString rest = ToQString(line);
  for (int column = 0; column < columns; ++column) {
    const bool last = column == columns - 1;
    const qsizetype tab = last ? -1 : rest.indexOf(QLatin1Char('\t'));
    QString text = tab < 0 ? rest : rest.left(tab);
    rest = tab < 0 ? QString() : rest.mid(tab + 1);
    text.replace(QLatin1Char('\t'), QLatin1String("  "));
    // Names that are padded to a width would be elided for their blanks.
    while (text.endsWith(QLatin1Char(' '))) text.chop(1);
    item.setText(column, text);
    item.setToolTip(column, text);
    item.setTextAlignment(column, Qt::Alignment::fromInt(tree.headerItem()->textAlignment(column)));
  }
}

void ShowEnd(QTreeWidget& tree) {
  // The newest line is the one to begin with.
  const int last = tree.topLevelItemCount() - 1;
  tree.setCurrentItem(tree.topLevelItem(last), 0, QItemSelectionModel::NoUpdate);
  tree.scrollToBottom();
}

}  // namespace

void ShowLines(QTreeWidget& tree, const std::vector<std::string>& lines) {
  const QScrollBar& bar = *tree.verticalScrollBar();
  const int place = bar.value();
  const bool atEnd = place == bar.maximum();
  tree.clear();
  QList<QTreeWidgetItem*> items;
  items.reserve(static_cast<qsizetype>(lines.size()));
  for (const std::string& line : lines) {
    auto* item = new QTreeWidgetItem;
    ShowLine(*item, tree, line);
    items.append(item);
  }
  tree.addTopLevelItems(items);
  if (!tree.property("showsEnd").toBool()) return;
  // Who scrolled up to read stays there.
  if (atEnd) {
    ShowEnd(tree);
  } else {
    tree.verticalScrollBar()->setValue(place);
  }
}

void ShowLines(QListWidget& list, const std::vector<std::string>& lines) {
  list.clear();
  for (const std::string& line : lines) list.addItem(ToQString(line));
}

void ShowMarks(QTreeWidget& tree, const std::vector<CarriedLine>& lines) {
  const int count = std::min(tree.topLevelItemCount(), static_cast<int>(lines.size()));
  for (int i = 0; i < count; ++i) {
    QTreeWidgetItem* item = tree.topLevelItem(i);
    const bool carried = lines[static_cast<std::size_t>(i)].carried;
    const Qt::CheckState state = carried ? Qt::Checked : Qt::Unchecked;
    const QVariant shown = item->data(0, Qt::CheckStateRole);
    if (!shown.isValid() || item->checkState(0) != state) item->setCheckState(0, state);
  }
}

void ShowMarks(QListWidget& list, const std::vector<CarriedLine>& lines) {
  const int count = std::min(list.count(), static_cast<int>(lines.size()));
  for (int i = 0; i < count; ++i) {
    const bool marked = lines[static_cast<std::size_t>(i)].carried;
    if (list.item(i)->isSelected() != marked) list.item(i)->setSelected(marked);
  }
}

void ShowSelection(QTreeWidget& tree, int line) {
  const QList<QTreeWidgetItem*> selected = tree.selectedItems();
  const int shown = selected.isEmpty() ? -1 : tree.indexOfTopLevelItem(selected.constFirst());
  if (shown == line) return;
  const QSignalBlocker quiet(tree);
  tree.setCurrentItem(tree.topLevelItem(line));
}

}  // namespace ng
