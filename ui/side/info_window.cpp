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
    : SideWindow("frmInfo", "Item Information", perform, parent) {
  resize(420, 470);
  auto* item = MakeValue(QStringLiteral("lblItem"), this);
  item->setWordWrap(true);
  auto* figures = MakeList(
      {QStringLiteral("lstFigures"), "Details of the item", "All details in the character file"},
      {ListColumn{"Detail", kNameColumn}, ListColumn{"Value"}}, this);
  auto* reference = MakeEntryText(QStringLiteral("txtReference"), this);
  reference->setPlaceholderText("No reference entry.");
  auto* column = new QVBoxLayout(this);
  SetEdges(*column);
  column->addWidget(item);
  column->addWidget(figures, 3);
  column->addWidget(reference, 2);
}

}  // namespace ng
