#pragma once

#include <span>
#include <string>
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

/// What an act of a command is to the fight's history.
enum class Effect {
  /// It changes the fight, or what stands on the sheet and in the dice roller: a step of undo.
  Change,
  /// The same by typing: successive edits of one box are one step.
  Edit,
  /// It changes what is looked at and belongs to the step before.
  Look,
  /// It writes files or settings, which undo never touches.
  Affair,
  /// It is for the desk, where the fight's acts are kept, and never reaches the session.
  Desk
};
constexpr bool IsChange(Effect effect) {
  return effect == Effect::Change || effect == Effect::Edit;
}

/// A command: what runs it, and how it appears in the menus and on the toolbar. Menus, toolbar, the
/// door and the tests all walk the one table of these.
struct Command {
  /// Of the act: the control's name, with "_Event" behind it where the control has several, and
  /// with the dialog's name and "." before it outside the main window.
  const char* name;
  void (*run)(Session& session, const Act& act);

  Menu menu = Menu::None;
  /// Entries of a menu with different groups are kept apart by a line.
  int group = 0;
  /// With the mnemonic marked by "&". Outside the menus it names the step: "{track}" stands for
  /// physical or stun and "{hand}" for primary or secondary, by the act's index.
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
  Effect effect = Effect::Change;
};

/// The words of a menu or an entry without the mnemonic's mark and the dots of one that asks
/// further.
std::string PlainWords(std::string_view text);

/// All commands; those of the menus stand in menu order, and the edits of controls that are bound
/// to fields behind all others.
std::span<const Command> Commands();

/// The toolbar's keys in its order; an empty one stands for a gap.
std::span<const char* const> ToolbarKeys();

/// Null when no command has the name.
const Command* FindCommand(std::string_view name);

}  // namespace ng
