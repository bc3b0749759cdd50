#include "ui/side/help_window.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QShortcut>
#include <QTextBrowser>
#include <QTreeWidget>
#include <span>

#include "app/help_form.h"
#include "ui/look/layout_kit.h"
#include "ui/wiring/shows.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

constexpr int kTopicsWidth = 200;
constexpr QSize kSize(860, 600);
constexpr QSize kLeastSize(640, 400);

// What the columns of a table take of its width, in per cent.
constexpr int kTwoColumns[] = {24, 76};
constexpr int kFourColumns[] = {26, 13, 17, 44};

/// Writes a topic out as the rich text that the browser shows, in the colours in force.
class TopicWriter {
 public:
  explicit TopicWriter(const HelpForm& form) : wanted_(ToQString(form.txtFilter)) {
    if (form.lstTopicsIndex < 0) {
      AddParagraph(HelpWindow::tr("The help says nothing about this."), "margin-top:6px");
      return;
    }
    AddParagraph(Escaped(ToQString(form.lstTopics[static_cast<std::size_t>(form.lstTopicsIndex)])),
                 "font-size:14pt; font-weight:600; margin-bottom:8px");
    for (const HelpLine& line : form.lines) Add(line);
    EndTable();
  }

  const QString& Html() const { return html_; }

 private:
  void Add(const HelpLine& line) {
    if (line.kind == HelpLine::Kind::Heading || line.kind == HelpLine::Kind::Text) EndTable();
    switch (line.kind) {
      case HelpLine::Kind::Heading:
        AddParagraph(Escaped(ToQString(line.cells.front())),
                     "font-size:11pt; font-weight:600; margin-top:14px; margin-bottom:4px");
        break;
      case HelpLine::Kind::Text:
        AddParagraph(Marked(line.cells.front()), "margin-bottom:8px");
        break;
      case HelpLine::Kind::Titles:
        AddRow(line.cells, "th");
        break;
      case HelpLine::Kind::Row:
        AddRow(line.cells, "td");
        break;
    }
  }

  void AddParagraph(const QString& text, const char* style) {
    html_ += QStringLiteral("<p style=\"margin:0 4px; %1\">%2</p>").arg(QLatin1String(style), text);
  }

  void AddRow(const std::vector<std::string>& cells, const char* tag) {
    if (rows_ == 0)
      html_ += QLatin1String("<table width=\"100%\" cellspacing=\"0\" cellpadding=\"4\">");
    const bool shaded = rows_++ % 2 != 0;
    const QColor back = shaded ? Theme::Current().alternateBase : Theme::Current().base;
    html_ += QStringLiteral("<tr bgcolor=\"%1\">").arg(back.name());
    const std::span<const int> widths =
        cells.size() == std::size(kTwoColumns) ? std::span<const int>(kTwoColumns) : kFourColumns;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      // The first cell is what is looked up.
      const QString text =
          i == 0 ? QStringLiteral("<b>%1</b>").arg(Marked(cells[i])) : Marked(cells[i]);
      html_ += QStringLiteral("<%1 align=\"left\" width=\"%2%\">%3</%1>")
                   .arg(QLatin1String(tag))
                   .arg(widths[i])
                   .arg(text);
    }
    html_ += QLatin1String("</tr>");
  }

  void EndTable() {
    if (rows_ > 0) html_ += QLatin1String("</table>");
    rows_ = 0;
  }

  static QString Escaped(const QString& text) { return text.toHtmlEscaped(); }

  /// The text with what is looked for on a ground of its own.
  QString Marked(const std::string& cell) const {
    const QString text = ToQString(cell);
    if (wanted_.isEmpty()) return Escaped(text);
    QString marked;
    qsizetype at = 0;
    for (qsizetype found = text.indexOf(wanted_, 0, Qt::CaseInsensitive); found >= 0;
         found = text.indexOf(wanted_, at, Qt::CaseInsensitive)) {
      marked += Escaped(text.mid(at, found - at));
      at = found + wanted_.size();
      marked +=
          QStringLiteral("<span style=\"background-color:%1\">%2</span>")
              .arg(Theme::Current().nonZeroBox.name(), Escaped(text.mid(found, wanted_.size())));
    }
    return marked + Escaped(text.mid(at));
  }

  QString wanted_;
  QString html_;
  /// Of the table that is begun.
  int rows_ = 0;
};

class TopicBrowser : public QTextBrowser, public ShowsHelp {
 public:
  using QTextBrowser::QTextBrowser;

  void ShowHelp(const HelpForm& help) override {
    const QString topic = TopicWriter(help).Html();
    if (shown_ != topic) setHtml(topic);
    shown_ = topic;
  }

 private:
  /// What the browser was last given; it gives back something else.
  QString shown_;
};

}  // namespace

HelpWindow::HelpWindow(const Perform& perform, QWidget* parent)
    : SideWindow("frmHelp", tr("Help"), perform, parent) {
  setMinimumSize(kLeastSize);
  resize(kSize);
  auto* filter = MakeBox({QStringLiteral("txtFilter"), tr("Find in the help"),
                          TipWithKey(tr("Show the lines that contain this"), tr("Ctrl+F"))},
                         kTopicsWidth, this);
  filter->setAlignment(Qt::AlignLeft);
  filter->setPlaceholderText(tr("Find"));
  filter->setClearButtonEnabled(true);
  topics_ = MakePlainList({QStringLiteral("lstTopics"), tr("Topics"), tr("The topics of the help")},
                          this);
  topics_->setFixedWidth(kTopicsWidth);
  auto* topic = new TopicBrowser(this);
  topic->setObjectName(QStringLiteral("txtTopic"));
  topic->setAccessibleName(tr("Text of the topic"));
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
