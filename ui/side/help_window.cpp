#include "ui/side/help_window.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextTable>
#include <QTreeWidget>
#include <span>

#include "ui/look/layout_kit.h"
#include "ui/wiring/shows.h"
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

/// Shows a topic that is written in Markdown, with what is looked for highlighted.
class TopicBrowser : public QTextBrowser, public ShowsText {
 public:
  TopicBrowser(const QLineEdit& filter, QWidget* parent) : QTextBrowser(parent), filter_(filter) {}

  void ShowText(const std::string& text) override {
    const Shown wanted{text, filter_.text(), &Theme::Current()};
    if (shown_ == wanted) return;
    shown_ = wanted;
    document()->setMarkdown(ToQString(text), QTextDocument::MarkdownDialectGitHub);
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
      if (auto* table = qobject_cast<QTextTable*>(frame)) FormatTable(*table);
    }
    HighlightText(*document(), filter_.text());
  }

 private:
  /// What the browser shows, and the colours that it was written in.
  struct Shown {
    std::string topic;
    QString filter;
    const Theme* theme = nullptr;
    bool operator==(const Shown&) const = default;
  };

  /// The box is painted before the topic.
  const QLineEdit& filter_;
  Shown shown_;
};

}  // namespace

HelpWindow::HelpWindow(const Perform& perform, QWidget* parent)
    : SideWindow("frmHelp", "Help", perform, parent) {
  setMinimumSize(kLeastSize);
  resize(kSize);
  auto* filter = MakeBox({QStringLiteral("txtFilter"), "Find in the help",
                          TipWithKey("Show the lines that contain this", "Ctrl+F")},
                         kTopicsWidth, this);
  filter->setAlignment(Qt::AlignLeft);
  filter->setPlaceholderText("Find");
  filter->setClearButtonEnabled(true);
  topics_ = MakePlainList({QStringLiteral("lstTopics"), "Topics", "The topics of the help"}, this);
  topics_->setFixedWidth(kTopicsWidth);
  auto* topic = new TopicBrowser(*filter, this);
  topic->setObjectName(QStringLiteral("txtTopic"));
  topic->setAccessibleName("Text of the topic");
  // Keys and names stay whole in narrow columns.
  topic->setWordWrapMode(QTextOption::WordWrap);
  topic->document()->setDocumentMargin(kGroupPadding);
  auto* find = new QShortcut(QKeySequence(QKeySequence::Find), this);
  connect(find, &QShortcut::activated, this, [filter] {
    filter->setFocus(Qt::ShortcutFocusReason);
    filter->selectAll();
  });
  auto* left = new QVBoxLayout;
  left->setSpacing(kGroupGap);
  left->addWidget(filter);
  left->addWidget(topics_, 1);
  auto* row = new QHBoxLayout(this);
  SetEdges(*row);
  row->addLayout(left);
  row->addWidget(topic, 1);
}

void HelpWindow::Opened() { topics_->setFocus(); }

}  // namespace ng
