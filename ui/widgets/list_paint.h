#pragma once

#include <string>
#include <vector>

#include "import/character_sheet.h"

class QListWidget;
class QTreeWidget;

namespace ng {

/// Fills a list again. Columns are separated by tabs; the last column of the list takes what is
/// left of a line, with two blanks for a tab. A column is aligned as its header is. Nothing is
/// checked or selected afterwards. A list with the property "showsEnd" shows its last line, the
/// others their first.
void ShowLines(QTreeWidget& tree, const std::vector<std::string>& lines);
void ShowLines(QListWidget& list, const std::vector<std::string>& lines);

/// Sets the check marks of a list that was filled from the same lines; selection and scroll
/// position stay.
void ShowMarks(QTreeWidget& tree, const std::vector<CarriedLine>& lines);
/// The same for a list whose marked lines are the selected ones.
void ShowMarks(QListWidget& list, const std::vector<CarriedLine>& lines);

/// Selects one line, none for -1.
void ShowSelection(QTreeWidget& tree, int line);

}  // namespace ng
