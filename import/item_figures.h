#pragma once

#include <string>
#include <vector>

#include "import/character_sheet.h"
#include "import/reference_tables.h"

namespace ng {

/// One figure of an item with the name of its column.
struct Figure {
  std::string name;
  std::string value;

  friend bool operator==(const Figure&, const Figure&) = default;
};

/// Everything that the character file says of the item behind a line: the category's name, then
/// every column of the category's header that has a name and a value. Of a category without a
/// header the fields are numbered instead ("Field 1"). None for a line that is no item of the file.
/// The file's text is read again, since this is asked for one item at a time.
std::vector<Figure> FiguresOf(const GearTable& table, const CharacterEntry& entry,
                              const CarriedLine& line);

}  // namespace ng
