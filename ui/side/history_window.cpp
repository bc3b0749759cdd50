#include "ui/side/history_window.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTreeWidget>

#include "app/history_form.h"
#include "ui/look/layout_kit.h"
#include "ui/look/theme.h"

namespace ng {
namespace {

constexpr QSize kSize(880, 640);
constexpr QSize kLeastSize(560, 400);
constexpr int kWho = 1;
constexpr int kWhat = 2;
constexpr int kChanges = 3;

/// Headings and names are bold, what was taken back is in italics, what changed is muted.
class LineDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QString what = index.siblingAtColumn(kWhat).data().toString();
    option->font.setBold(index.column() == kWho);
    option->font.setItalic(what.startsWith(QLatin1String(kTakenBack)));
    if (index.column() != kChanges) return;
    option->palette.setColor(QPalette::Text, option->palette.color(kMutedText));
  }
};

}  // namespace

HistoryWindow::HistoryWindow(const Perform& perform, QWidget* parent)
    : SideWindow("frmHistory", "History", perform, parent),
      lines_(MakeList({QStringLiteral("lstLines"), "What has happened",
                       "What has happened in this fight; double-click shows the combatant"},
                      {{"Time", 52}, {"Who", 170}, {"What", 240}, {"What changed"}}, this)) {
  resize(kSize);
  setMinimumSize(kLeastSize);
  lines_->setProperty("showsEnd", true);
  lines_->setItemDelegate(new LineDelegate(lines_));
  connect(lines_, &QTreeWidget::itemActivated, this, [this] { Do({"frmHistory.cmdShow"}); });
  auto* copy = new QAction(lines_);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);
  connect(copy, &QAction::triggered, this, [this] { CopySelected(); });
  lines_->addAction(copy);
  auto* column = new QVBoxLayout(this);
  SetEdges(*column);
  column->addLayout(BuildFilters());
  column->addWidget(lines_, 1);
  column->addLayout(BuildButtons());
}

QBoxLayout* HistoryWindow::BuildFilters() {
  auto* find =
      MakeBox({QStringLiteral("txtFind"), "Find", "List only lines that contain this"}, 0, this);
  find->setMaximumWidth(QWIDGETSIZE_MAX);
  find->setAlignment(Qt::AlignLeft);
  find->setPlaceholderText("Find");
  find->setClearButtonEnabled(true);
  auto* toFind = new QAction(this);
  toFind->setShortcut(QKeySequence::Find);
  connect(toFind, &QAction::triggered, find, [find] { find->setFocus(Qt::ShortcutFocusReason); });
  addAction(toFind);
  auto* who = new QComboBox(this);
  who->setObjectName(QStringLiteral("cmbWho"));
  who->setAccessibleName("Combatant");
  who->setToolTip("List only lines about this combatant");
  who->setMinimumWidth(180);
  auto* row = MakeRow(kGroupGap);
  row->addWidget(find, 1);
  row->addWidget(who);
  return row;
}

QBoxLayout* HistoryWindow::BuildButtons() {
  auto* back = MakeButton({QStringLiteral("cmdBack"), "Back to here",
                           "Undo everything after the selected line; Redo brings it back"},
                          "&Back to here", this);
  auto* show = MakeButton({QStringLiteral("cmdShow"), "Show combatant",
                           "Show the combatant that the selected line is about"},
                          "Show &combatant", this);
  auto* copy = MakeButton({QStringLiteral("copyLine"), "Copy", "Copy the selected line (Ctrl+C)"},
                          "C&opy", this);
  connect(copy, &QPushButton::clicked, this, [this] { CopySelected(); });
  auto* save = MakeButton(
      {QStringLiteral("cmdSave"), "Save as text", "Save the listed lines as a text file"},
      "&Save as text...", this);
  auto* shut = MakeButton(
      {QStringLiteral("cmdClose"), "Close the window", TipWithKey("Close the window", "Esc")},
      "Close", this);
  connect(shut, &QPushButton::clicked, this, [this] { reject(); });
  auto* row = MakeRow(kGroupGap);
  for (QPushButton* button : {back, show, copy, save}) row->addWidget(button);
  row->addStretch(1);
  row->addWidget(shut);
  return row;
}

void HistoryWindow::CopySelected() const {
  const QList<QTreeWidgetItem*> items = lines_->selectedItems();
  if (items.isEmpty()) return;
  QStringList columns;
  for (int column = 0; column < lines_->columnCount(); ++column) {
    if (!items.constFirst()->text(column).isEmpty()) columns += items.constFirst()->text(column);
  }
  QApplication::clipboard()->setText(columns.join(QStringLiteral("  ")));
}

void HistoryWindow::Opened() { lines_->scrollToBottom(); }

}  // namespace ng
