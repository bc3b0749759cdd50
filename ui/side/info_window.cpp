#include "ui/side/info_window.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTreeWidget>

#include "ui/look/layout_kit.h"

namespace ng {
namespace {

constexpr int kNameColumn = 140;

}  // namespace

InfoWindow::InfoWindow(const Perform& perform, QWidget* parent)
    : SideWindow("frmInfo", tr("Item Information"), perform, parent) {
  resize(420, 470);
  auto* item = MakeValue(QStringLiteral("lblItem"), this);
  item->setWordWrap(true);
  auto* figures = MakeList({QStringLiteral("lstFigures"), tr("Figures of the item"),
                            tr("Every figure that the character file gives")},
                           {ListColumn{tr("Figure"), kNameColumn}, ListColumn{tr("Value")}}, this);
  auto* reference = MakeEntryText(QStringLiteral("txtReference"), this);
  reference->setPlaceholderText(tr("The reference file says nothing about it."));
  auto* column = new QVBoxLayout(this);
  SetEdges(*column);
  column->addWidget(item);
  column->addWidget(figures, 3);
  column->addWidget(reference, 2);
}

}  // namespace ng
