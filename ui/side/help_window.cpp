#include "ui/side/help_window.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextTable>
#include <QTreeWidget>
#include <span>

#include "app/main_form.h"
#include "ui/look/layout_kit.h"
#include "ui/widgets/list_paint.h"
#include "ui/wiring/code_page_input.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

constexpr int kTopicsWidth = 200;
constexpr int kCellPadding = 4;
constexpr int kBelowTable = 12;
constexpr QSize kSize(860, 600);
constexpr QSize kLeastSize(640, 400);

// What the columns of a table take of its width, in per cent.
constexpr int kTwoColumns[] = {24, 76};
constexpr int kFourColumns[] = {26, 13, 17, 44};

/// Gives a table the whole width, rows that can be told apart, and bold words to look up.
void FormatTable(QTextTable& table) {
  const std::span<const int> widths =
      table.columns() == 2 ? std::span<const int>(kTwoColumns) : kFourColumns;
  QTextTableFormat format = table.format();
  format.setBorder(0);
  format.setCellSpacing(0);
  format.setCellPadding(kCellPadding);
  format.setBottomMargin(kBelowTable);
  format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  QList<QTextLength> columns;
  for (const int width : widths) columns += QTextLength(QTextLength::PercentageLength, width);
  format.setColumnWidthConstraints(columns);
  table.setFormat(format);
  QTextTableCellFormat shaded;
  shaded.setBackground(Theme::Current().alternateBase);
  QTextCharFormat bold;
  bold.setFontWeight(QFont::Bold);
  for (int row = 1; row < table.rows(); ++row) {
    for (int column = 0; column < table.columns(); ++column) {
      QTextTableCell cell = table.cellAt(row, column);
      if (row % 2 == 0) cell.setFormat(shaded);
      if (column > 0) continue;
      QTextCursor words = cell.firstCursorPosition();
      words.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
      words.mergeCharFormat(bold);
    }
  }
}

/// Puts what is looked for on a ground of its own.
void HighlightText(QTextDocument& document, const QString& wanted) {
  if (wanted.isEmpty()) return;
  QTextCharFormat found;
  found.setBackground(Theme::Current().nonZeroBox);
  for (QTextCursor at = document.find(wanted); !at.isNull(); at = document.find(wanted, at)) {
    at.mergeCharFormat(found);
  }
}

}  // namespace

HelpWindow::HelpWindow(const Perform& perform, QWidget* parent)
    : SideWindow(QStringLiteral("frmHelp"), "Help", "frmHelp.Close", perform, parent) {
  setMinimumSize(kLeastSize);
  resize(kSize);
  filter_ = MakeBox({QStringLiteral("txtFilter"), "Find in the help",
                     TipWithKey("Show the lines that contain this", "Ctrl+F")},
                    kTopicsWidth, this);
  filter_->setAlignment(Qt::AlignLeft);
  filter_->setPlaceholderText("Find");
  filter_->setClearButtonEnabled(true);
  topics_ = MakePlainList({QStringLiteral("lstTopics"), "Topics", "The topics of the help"}, this);
  topics_->setFixedWidth(kTopicsWidth);
  topic_ = new QTextBrowser(this);
  topic_->setObjectName(QStringLiteral("txtTopic"));
  topic_->setAccessibleName("Text of the topic");
  // Keys and names stay whole in narrow columns.
  topic_->setWordWrapMode(QTextOption::WordWrap);
  topic_->document()->setDocumentMargin(kGroupPadding);
  KeepToCodePage(*filter_, perform);
  connect(filter_, &QLineEdit::textEdited, this, [this](const QString& text) {
    Do({"frmHelp.txtFilter", 0, FromQString(text)});
  });
  connect(topics_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item != nullptr) Do({"frmHelp.lstTopics_Select", topics_->indexOfTopLevelItem(item)});
  });
  auto* find = new QShortcut(QKeySequence(QKeySequence::Find), this);
  connect(find, &QShortcut::activated, this, [this] {
    filter_->setFocus(Qt::ShortcutFocusReason);
    filter_->selectAll();
  });
  auto* left = new QVBoxLayout;
  left->setSpacing(kGroupGap);
  left->addWidget(filter_);
  left->addWidget(topics_, 1);
  auto* row = new QHBoxLayout(this);
  SetEdges(*row);
  row->addLayout(left);
  row->addWidget(topic_, 1);
}

void HelpWindow::Paint(const MainForm& form) {
  const HelpForm& help = form.help;
  const bool opens = help.open && !isVisible();
  if (help.open) {
    const QString filter = ToQString(help.txtFilter);
    if (filter_->text() != filter) filter_->setText(filter);
    const QSignalBlocker quiet(*topics_);
    if (shownTopics_ != help.lstTopics) ShowLines(*topics_, help.lstTopics);
    shownTopics_ = help.lstTopics;
    ShowSelection(*topics_, help.lstTopicsIndex);
    ShowTopic(help);
  }
  SetOpen(help.open);
  if (opens) topics_->setFocus();
}

void HelpWindow::ShowTopic(const HelpForm& help) {
  const Shown wanted{help.txtTopic, help.txtFilter, &Theme::Current()};
  if (shown_ == wanted) return;
  shown_ = wanted;
  QTextDocument& document = *topic_->document();
  document.setMarkdown(ToQString(help.txtTopic), QTextDocument::MarkdownDialectGitHub);
  for (QTextFrame* frame : document.rootFrame()->childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(frame)) FormatTable(*table);
  }
  HighlightText(document, ToQString(help.txtFilter));
}

}  // namespace ng
