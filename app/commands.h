#pragma once

#include <span>
#include <string_view>

#include "app/session.h"

namespace ng {

/// The menus of the main window, in their order.
enum class Menu { None, File, Turn, Combatant, View, Help };

/// A menu's title, with the mnemonic marked by "&".
struct MenuTitle {
  Menu menu;
  const char* text;
};
inline constexpr MenuTitle kMenuTitles[] = {{Menu::File, "&File"},
                                            {Menu::Turn, "&Turn"},
                                            {Menu::Combatant, "&Combatant"},
                                            {Menu::View, "&View"},
                                            {Menu::Help, "&Help"}};

/// A command: what runs it, and how it stands in the menus and on the toolbar. Menus, toolbar, the
/// door and the tests all walk the one table of these.
struct Command {
  /// Of the act: the control's name, with "_Event" behind it where the control has several, and
  /// with the dialog's name and "." before it outside the main window.
  const char* name;
  void (*run)(Session& session, const Act& act);

  Menu menu = Menu::None;
  /// Entries of a menu with different groups are kept apart by a line.
  int group = 0;
  /// With the mnemonic marked by "&".
  const char* text = "";
  /// In the toolkit's portable form ("Ctrl+Shift+N").
  const char* shortcut = "";
  /// What it does, for the tooltip and the status bar.
  const char* tip = "";
  /// Key of the toolbar button and the words below its icon; empty when it has none.
  const char* toolbarKey = "";
  const char* toolbarText = "";
  /// The entry carries a check mark.
  bool checkable = false;
};

/// All commands; those of the menus stand in menu order, and the edits of controls that are bound
/// to fields behind all others.
std::span<const Command> Commands();

/// The toolbar's keys in its order; an empty one stands for a gap.
std::span<const char* const> ToolbarKeys();

/// Null when no command has the name.
const Command* FindCommand(std::string_view name);

}  // namespace ng
