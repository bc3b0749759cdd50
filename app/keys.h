#pragma once

#include <span>
#include <string_view>

namespace ng {

/// A key that does what a button or an entry of one window does, beside the shortcuts of the main
/// menus.
struct ButtonKey {
  /// In the toolkit's portable form ("Ctrl+Shift+Up").
  const char* key;
  /// Object name of the button or entry.
  const char* button;
  /// What it does, for the help.
  const char* words;
};

/// The buttons of the main window that are pressed all through a fight.
std::span<const ButtonKey> MainKeys();

/// The entries of the dice roller's menu.
std::span<const ButtonKey> RollerKeys();

/// The row of an entry of the dice roller's menu, which must be one of them.
const ButtonKey& RollerKey(std::string_view entry);

}  // namespace ng
