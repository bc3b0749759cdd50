#pragma once

#include <QIcon>
#include <string_view>

namespace ng {

/// How an icon is coloured: as the text beside it, or white on an accent-coloured button.
enum class IconColour { Text, White };

/// The line icon of a toolbar key ("Reroll"), drawn as paths and therefore sharp at any scale; a
/// null icon for a key that has none.
QIcon ToolbarIcon(std::string_view key, IconColour colour);

/// The program's own icon.
QIcon ApplicationIcon();

}  // namespace ng
