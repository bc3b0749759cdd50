#include "ui/side/info_window.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTreeWidget>

#include "app/main_form.h"
#include "ui/look/layout_kit.h"
#include "ui/widgets/list_paint.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

constexpr int kNameColumn = 140;

}  // namespace

InfoWindow::InfoWindow(const Perform& perform, QWidget* parent)
    : SideWindow(QStringLiteral("frmInfo"), "Item Information", "frmInfo.Close", perform, parent) {
  resize(420, 470);
  item_ = MakeValue(QStringLiteral("lblItem"), this);
  item_->setTextFormat(Qt::PlainText);
  item_->setWordWrap(true);
  figures_ = MakeList(
      {QStringLiteral("lstFigures"), "Details of the item", "All details in the character file"},
      {ListColumn{"Detail", kNameColumn}, ListColumn{"Value"}}, this);
  reference_ = MakeEntryText(QStringLiteral("txtReference"), this);
  reference_->setPlaceholderText("No reference entry.");
  auto* column = new QVBoxLayout(this);
  SetEdges(*column);
  column->addWidget(item_);
  column->addWidget(figures_, 3);
  column->addWidget(reference_, 2);
}

void InfoWindow::Paint(const MainForm& main) {
  const InfoForm& form = main.itemInfo;
  const QString item = ToQString(form.lblItem);
  if (item_->text() != item) item_->setText(item);
  if (shown_ != form.lstFigures) {
    shown_ = form.lstFigures;
    ShowLines(*figures_, shown_);
  }
  ShowEntry(*reference_, form.txtReference);
  SetOpen(form.open);
}

}  // namespace ng
