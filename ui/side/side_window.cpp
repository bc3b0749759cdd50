#include "ui/side/side_window.h"

#include <QBoxLayout>
#include <QShortcut>
#include <utility>

#include "app/commands.h"
#include "ui/look/layout_kit.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

constexpr int kEdge = 12;

}  // namespace

SideWindow::SideWindow(const QString& name, const QString& title, const char* closeAct,
                       Perform perform, QWidget* parent)
    : QDialog(parent), closeAct_(closeAct), perform_(std::move(perform)) {
  setObjectName(name);
  setWindowTitle(title);
  setModal(false);
  // The shortcuts of the main window's menus do not work in this one.
  const QString key = QString::fromLatin1(FindCommand("mnuHelpContents")->shortcut);
  auto* help = new QShortcut(QKeySequence(key, QKeySequence::PortableText), this);
  connect(help, &QShortcut::activated, this, [this] {
    Do({"mnuHelpContents", 0, FromQString(objectName())});
  });
}

void SideWindow::reject() { Do({closeAct_}); }

void SideWindow::BringToFront() {
  raise();
  activateWindow();
}

void SideWindow::SetOpen(bool open) {
  if (open == isVisible()) return;
  setVisible(open);
  if (open) activateWindow();
}

void SideWindow::SetEdges(QBoxLayout& layout) {
  layout.setContentsMargins(kEdge, kEdge, kEdge, kEdge);
  layout.setSpacing(kGroupGap);
}

}  // namespace ng
