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
  text->setAccessibleName(QObject::tr("Text of the entry"));
  text->setToolTip(QObject::tr("What the reference file says"));
  text->setReadOnly(true);
  text->setTabChangesFocus(true);
  return text;
}

GmWindow::GmWindow(const Perform& perform, QWidget* parent)
    : SideWindow("frmGM", tr("Game Master"), perform, parent) {
  resize(420, 350);
  lines_ = MakeGrowingList({QStringLiteral("lstGMinfo"), tr("Game master's notes"),
                            tr("What happened, and the notes that you added")},
                           this);
  auto* add = MakeButton(
      {QStringLiteral("cmdAddNote"), tr("Add a note"), tr("Add a line of your own to the list")},
      tr("&Add Note"), this);
  add->setDefault(true);
  auto* log = MakeButton({QStringLiteral("cmdViewLog"), tr("View the log file"),
                          tr("Show what the log file holds of this and earlier evenings")},
                         tr("&View Log"), this);
  auto* shut = MakeButton({QStringLiteral("cmdClose"), tr("Close the window"),
                           TipWithKey(tr("Close the window"), tr("Esc"))},
                          tr("Close"), this);
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
    : SideWindow("frmDisplay", tr("Log"), perform, parent) {
  resize(420, 350);
  auto* lines = MakeGrowingList(
      {QStringLiteral("lstDisplay"), tr("Lines of the log file"), tr("Every line of the log file")},
      this);
  auto* count = MakeCaption({}, this);
  count->setObjectName(QStringLiteral("lblCount"));
  auto* shut = MakeButton({QStringLiteral("cmdClose"), tr("Close the window"),
                           TipWithKey(tr("Close the window"), tr("Esc"))},
                          tr("Close"), this);
  auto* row = MakeRow(kGroupGap);
  row->addWidget(count, 1);
  row->addWidget(shut);
  auto* column = new QVBoxLayout(this);
  SetEdges(*column);
  column->addWidget(lines, 1);
  column->addLayout(row);
}

ReferenceWindow::ReferenceWindow(const Perform& perform, QWidget* parent)
    : SideWindow("frmReference", tr("Reference"), perform, parent) {
  resize(620, 400);
  filter_ = MakeBox({QStringLiteral("txtFilter"), tr("Part of the name"),
                     tr("Show the entries whose name contains this")},
                    0, this);
  filter_->setMinimumWidth(180);
  filter_->setMaximumWidth(QWIDGETSIZE_MAX);
  filter_->setAlignment(Qt::AlignLeft);
  filter_->setPlaceholderText(tr("Part of the name"));
  filter_->setClearButtonEnabled(true);
  auto* names = MakePlainList(
      {QStringLiteral("lstNames"), tr("Entries"), tr("The entries of the reference file")}, this);
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
