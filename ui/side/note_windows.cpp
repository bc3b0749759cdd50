#include "ui/side/note_windows.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "ui/look/layout_kit.h"

namespace ng {
namespace {

/// A list that goes on growing, shown from its end.
QTreeWidget* MakeGrowingList(const Naming& naming, QWidget* parent) {
  QTreeWidget* list = MakePlainList(naming, parent);
  list->setProperty("showsEnd", true);
  return list;
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

GmWindow::GmWindow(const Perform& perform, QWidget* parent)
    : SideWindow("frmGM", "Game Master", perform, parent) {
  resize(420, 350);
  lines_ = MakeGrowingList({QStringLiteral("lstGMinfo"), "Game master's notes",
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

void GmWindow::Opened() { lines_->scrollToBottom(); }

LogWindow::LogWindow(const Perform& perform, QWidget* parent)
    : SideWindow("frmDisplay", "Log", perform, parent) {
  resize(420, 350);
  auto* lines = MakeGrowingList(
      {QStringLiteral("lstDisplay"), "Lines of the log file", "Every line of the log file"}, this);
  auto* count = MakeCaption({}, this);
  count->setObjectName(QStringLiteral("lblCount"));
  auto* shut = MakeButton(
      {QStringLiteral("cmdClose"), "Close the window", TipWithKey("Close the window", "Esc")},
      "Close", this);
  auto* row = MakeRow(kGroupGap);
  row->addWidget(count, 1);
  row->addWidget(shut);
  auto* column = new QVBoxLayout(this);
  SetEdges(*column);
  column->addWidget(lines, 1);
  column->addLayout(row);
}

ReferenceWindow::ReferenceWindow(const Perform& perform, QWidget* parent)
    : SideWindow("frmReference", "Reference", perform, parent) {
  resize(620, 400);
  filter_ = MakeBox({QStringLiteral("txtFilter"), "Part of the name",
                     "Show the entries whose name contains this"},
                    0, this);
  filter_->setMinimumWidth(180);
  filter_->setMaximumWidth(QWIDGETSIZE_MAX);
  filter_->setAlignment(Qt::AlignLeft);
  filter_->setPlaceholderText("Part of the name");
  filter_->setClearButtonEnabled(true);
  auto* names = MakePlainList(
      {QStringLiteral("lstNames"), "Entries", "The entries of the reference file"}, this);
  auto* left = new QVBoxLayout;
  left->setSpacing(kGroupGap);
  left->addWidget(filter_);
  left->addWidget(names, 1);
  auto* row = new QHBoxLayout(this);
  SetEdges(*row);
  row->addLayout(left, 2);
  row->addWidget(MakeEntryText(QStringLiteral("txtEntry"), this), 3);
}

void ReferenceWindow::Opened() { filter_->setFocus(); }

}  // namespace ng
