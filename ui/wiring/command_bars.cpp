#include "ui/wiring/command_bars.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <cstring>
#include <utility>

#include "app/commands.h"
#include "ui/look/icons.h"
#include "ui/look/layout_kit.h"
#include "ui/wiring/text.h"

namespace ng {
namespace {

constexpr int kIconSize = 20;
constexpr int kToolbarHeight = 57;
constexpr QSize kLeastButton(57, 49);
constexpr QSize kLeastNext(70, 49);

bool IsNext(const Command& command) { return std::strcmp(command.toolbarKey, "Next") == 0; }

QAction* MakeAction(QMainWindow& window, const Command& command, const Perform& perform) {
  auto* action = new QAction(ToQString(command.text), &window);
  action->setObjectName(QString::fromLatin1(command.name));
  action->setCheckable(command.checkable);
  const QKeySequence key(QString::fromLatin1(command.shortcut), QKeySequence::PortableText);
  const QString tip = ToQString(command.tip);
  action->setShortcut(key);
  action->setStatusTip(tip);
  action->setToolTip(ToQString(PlainWords(command.text)) + QLatin1Char('\n') +
                     TipWithKey(tip, key.toString(QKeySequence::NativeText)));
  action->setIconText(ToQString(command.toolbarText));
  action->setIcon(
      ToolbarIcon(command.toolbarKey, IsNext(command) ? IconColour::White : IconColour::Text));
  // The menus show words only, as the toolbar's icons repeat them.
  action->setIconVisibleInMenu(false);
  QObject::connect(action, &QAction::triggered, &window, [action, &command, perform](bool checked) {
    // The form decides on the mark and is painted afterwards.
    if (action->isCheckable()) action->setChecked(!checked);
    perform({command.name, 0, {}});
  });
  return action;
}

const Command* FindToolbarCommand(const char* key) {
  for (const Command& command : Commands()) {
    if (std::strcmp(command.toolbarKey, key) == 0) return &command;
  }
  return nullptr;
}

void AddButton(QMainWindow& window, QToolBar& bar, const Command& command) {
  auto* action = window.findChild<QAction*>(QString::fromLatin1(command.name));
  bar.addAction(action);
  auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
  button->setObjectName(QString::fromLatin1(command.toolbarKey));
  button->setAccessibleName(action->iconText());
  button->setMinimumSize(IsNext(command) ? kLeastNext : kLeastButton);
  if (IsNext(command)) Embolden(button);
}

}  // namespace

void BuildMenus(QMainWindow& window, const Perform& perform) {
  for (const auto& [place, title] : kMenuTitles) {
    QMenu* menu = nullptr;
    int group = 0;
    for (const Command& command : Commands()) {
      if (command.menu != place) continue;
      if (menu == nullptr) {
        menu = window.menuBar()->addMenu(QString::fromLatin1(title));
        group = command.group;
      }
      if (std::exchange(group, command.group) != command.group) menu->addSeparator();
      menu->addAction(MakeAction(window, command, perform));
    }
  }
}

void BuildToolbar(QMainWindow& window) {
  auto* bar = window.addToolBar("Toolbar");
  bar->setObjectName(QStringLiteral("toolBar"));
  bar->setMovable(false);
  bar->setFloatable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  bar->setIconSize({kIconSize, kIconSize});
  bar->setFixedHeight(kToolbarHeight);
  bool gap = false;
  for (const char* key : ToolbarKeys()) {
    if (*key == '\0') {
      gap = !bar->actions().isEmpty();
      continue;
    }
    const Command* command = FindToolbarCommand(key);
    if (command == nullptr) continue;
    if (std::exchange(gap, false)) bar->addSeparator();
    AddButton(window, *bar, *command);
  }
}

}  // namespace ng
