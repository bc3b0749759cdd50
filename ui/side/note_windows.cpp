#include "ui/side/note_windows.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>

#include "app/main_form.h"
#include "ui/look/layout_kit.h"
#include "ui/widgets/list_paint.h"
#include "ui/wiring/code_page_input.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

/// Fills a list that goes on growing and shows its end, if it shows something else.
void FollowLines(QTreeWidget& list, std::vector<std::string>& shown,
                 const std::vector<std::string>& lines) {
  if (shown == lines) return;
  shown = lines;
  const QSignalBlocker quiet(list);
  ShowLines(list, lines);
  // The newest line is the one to begin with.
  const int last = list.topLevelItemCount() - 1;
  list.setCurrentItem(list.topLevelItem(last), 0, QItemSelectionModel::NoUpdate);
  list.scrollToBottom();
}

}  // namespace

QPlainTextEdit* MakeEntryText(const QString& name, QWidget* parent) {
  auto* text = new QPlainTextEdit(parent);
  text->setObjectName(name);
  text->setAccessibleName("Text of the entry");
  text->setToolTip("What the reference file says");
  text->setReadOnly(true);
  text->setTabChangesFocus(true);
  return text;
}

void ShowEntry(QPlainTextEdit& widget, const std::string& entry) {
  QString text = ToQString(entry);
  text.replace(QLatin1Char('|'), QLatin1Char('\n')).remove(QLatin1Char('\r'));
  if (widget.toPlainText() != text) widget.setPlainText(text);
}

GmWindow::GmWindow(const Perform& perform, QWidget* parent)
    : SideWindow(QStringLiteral("frmGM"), "Game Master", "frmGM.Close", perform, parent) {
  resize(420, 350);
  lines_ = MakePlainList({QStringLiteral("lstGMinfo"), "Game master's notes",
                          "What happened, and the notes that you added"},
                         this);
  auto* add =
      MakeButton({QStringLiteral("cmdAddNote"), "Add a note", "Add a line of your own to the list"},
                 "&Add Note", this);
  add->setDefault(true);
  auto* log = MakeButton({QStringLiteral("cmdViewLog"), "View the log file",
                          "Show the log of this and earlier sessions"},
                         "&View Log", this);
  auto* shut = MakeButton(
      {QStringLiteral("cmdClose"), "Close the window", TipWithKey("Close the window", "Esc")},
      "Close", this);
  connect(add, &QPushButton::clicked, this, [this] { Do({"frmGM.cmdAddNote"}); });
  connect(log, &QPushButton::clicked, this, [this] { Do({"frmGM.cmdViewLog"}); });
  connect(shut, &QPushButton::clicked, this, [this] { reject(); });
  auto* buttons = MakeRow(kGroupGap);
  buttons->addWidget(add);
  buttons->addWidget(log);
  buttons->addStretch(1);
  buttons->addWidget(shut);
  auto* column = new QVBoxLayout(this);
  SetEdges(*column);
  column->addWidget(lines_, 1);
  column->addLayout(buttons);
}

void GmWindow::Paint(const MainForm& form) {
  const bool opens = form.frmGMOpen && !isVisible();
  FollowLines(*lines_, shown_, form.gmLog.lstGMinfo());
  SetOpen(form.frmGMOpen);
  if (opens) lines_->scrollToBottom();
}

LogWindow::LogWindow(const Perform& perform, QWidget* parent)
    : SideWindow(QStringLiteral("frmDisplay"), "Log", "frmDisplay.cmdClose", perform, parent) {
  resize(420, 350);
  lines_ = MakePlainList(
      {QStringLiteral("lstDisplay"), "Lines of the log file", "Every line of the log file"}, this);
  count_ = MakeCaption({}, this);
  auto* shut = MakeButton(
      {QStringLiteral("cmdClose"), "Close the window", TipWithKey("Close the window", "Esc")},
      "Close", this);
  connect(shut, &QPushButton::clicked, this, [this] { reject(); });
  auto* row = MakeRow(kGroupGap);
  row->addWidget(count_, 1);
  row->addWidget(shut);
  auto* column = new QVBoxLayout(this);
  SetEdges(*column);
  column->addWidget(lines_, 1);
  column->addLayout(row);
}

void LogWindow::Paint(const MainForm& form) {
  FollowLines(*lines_, shown_, form.logViewer.lstDisplay);
  const auto count = form.logViewer.lstDisplay.size();
  count_->setText(count == 1 ? "1 line" : QStringLiteral("%1 lines").arg(count));
  SetOpen(form.logViewer.open);
}

ReferenceWindow::ReferenceWindow(const Perform& perform, QWidget* parent)
    : SideWindow(QStringLiteral("frmReference"), "Reference", "frmReference.Close", perform,
                 parent) {
  resize(620, 400);
  filter_ = MakeBox({QStringLiteral("txtFilter"), "Part of the name",
                     "Show the entries whose name contains this"},
                    0, this);
  filter_->setMinimumWidth(180);
  filter_->setMaximumWidth(QWIDGETSIZE_MAX);
  filter_->setAlignment(Qt::AlignLeft);
  filter_->setPlaceholderText("Part of the name");
  filter_->setClearButtonEnabled(true);
  names_ = MakePlainList(
      {QStringLiteral("lstNames"), "Entries", "The entries of the reference file"}, this);
  entry_ = MakeEntryText(QStringLiteral("txtEntry"), this);
  KeepToCodePage(*filter_, perform);
  connect(filter_, &QLineEdit::textEdited, this, [this](const QString& text) {
    Do({"frmReference.txtFilter", 0, FromQString(text)});
  });
  connect(names_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item != nullptr) Do({"frmReference.lstNames_Select", names_->indexOfTopLevelItem(item)});
  });
  auto* left = new QVBoxLayout;
  left->setSpacing(kGroupGap);
  left->addWidget(filter_);
  left->addWidget(names_, 1);
  auto* row = new QHBoxLayout(this);
  SetEdges(*row);
  row->addLayout(left, 2);
  row->addWidget(entry_, 3);
}

void ReferenceWindow::Paint(const MainForm& form) {
  const ReferenceForm& reference = form.reference;
  const QString filter = ToQString(reference.txtFilter);
  if (filter_->text() != filter) filter_->setText(filter);
  {
    const QSignalBlocker quiet(*names_);
    if (shown_ != reference.lstNames) {
      shown_ = reference.lstNames;
      ShowLines(*names_, shown_);
    }
    names_->setCurrentItem(names_->topLevelItem(reference.lstNamesIndex));
  }
  ShowEntry(*entry_, reference.txtEntry);
  const bool opens = reference.open && !isVisible();
  SetOpen(reference.open);
  if (opens) filter_->setFocus();
}

}  // namespace ng
