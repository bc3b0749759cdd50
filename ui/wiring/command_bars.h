#pragma once

#include "ui/wiring/acts.h"

class QMainWindow;

namespace ng {

/// Fills the menu bar from the table of commands: an action for every command that is in a
/// menu, named after the command. A menu without entries is left out.
void BuildMenus(QMainWindow& window, const Perform& perform);

/// Fills the toolbar with the actions that have a key on it; its buttons carry the key as name. The
/// menus must have been built.
void BuildToolbar(QMainWindow& window);

}  // namespace ng
