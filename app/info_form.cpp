#include "app/info_form.h"

#include <algorithm>

#include "app/main_form.h"
#include "base/text.h"
#include "import/item_figures.h"

namespace ng {
namespace {

/// What the columns after the name hold, for lines that the gear table says nothing about.
struct ListColumns {
  SheetList list;
  std::array<std::string_view, 5> names;
};
constexpr std::array<ListColumns, 6> kColumns = {{
    {SheetList::Weapon, {"Damage", "Concealability", "Details", "Ammunition", "Weight"}},
    {SheetList::Armor, {"Concealability", "Ballistic", "Impact", "Weight"}},
    {SheetList::Active, {"Rating", "Kind"}},
    {SheetList::Other, {"Rating", "Kind"}},
    {SheetList::Edges, {"Points"}},
    {SheetList::Contacts, {"Level"}},
}};

/// "CYB: ", "SPL: " and the like say where a line comes from and are no part of the name.
constexpr std::size_t kMarkLength = 5;

std::string WithoutMark(SheetList list, const std::string& name) {
  const bool marked = list == SheetList::Augments || list == SheetList::Magic;
  if (!marked || name.size() <= kMarkLength || name[kMarkLength - 2] != ':') return name;
  return name.substr(kMarkLength);
}

/// A weapon may be in the reference file without its class code.
std::string WithoutClass(const std::string& name) {
  return std::string(Trimmed(std::string_view(name).substr(0, name.rfind('('))));
}

std::string Row(std::string_view name, std::string_view value) {
  return std::string(name) + '\t' + std::string(value);
}

}  // namespace

void InfoForm::Mark(SheetList list, int index) {
  marked_[static_cast<std::size_t>(list)] = index;
  list_ = list;
  Refresh();
}

void InfoForm::Form_Load() {
  open = true;
  Fill();
}

void InfoForm::Form_Load(SheetList list) {
  list_ = list;
  Form_Load();
}

void InfoForm::Fill() {
  lstFigures.clear();
  txtReference.clear();
  const std::string* line = form_.sheet.Line(list_, Marked(list_));
  if (line == nullptr) {
    lblItem = "Select a line first";
    return;
  }
  const std::string text = CleanItemText(*line);
  lblItem = Trimmed(Piece(text, '\t', 0));
  FillFigures(text);
  FillReference(WithoutMark(list_, lblItem));
}

void InfoForm::FillFigures(const std::string& line) {
  const CarriedLine* item = form_.sheet.Carried(list_, Marked(list_));
  const CharacterEntry* entry =
      form_.characters.Of(form_.fight.Players[form_.fight.CurrentPCpointer]);
  if (item != nullptr && entry != nullptr) {
    for (const Figure& figure : FiguresOf(form_.gearTable, *entry, *item)) {
      lstFigures.push_back(Row(figure.name, figure.value));
    }
  }
  if (lstFigures.empty()) FillColumns(line);
  if (list_ == SheetList::Active) {
    const std::string type = ConvertSkill(form_.skillTable, lblItem);
    if (type != kNotFound) lstFigures.push_back(Row("Weapon type", type));
  }
  if (item != nullptr) {
    const char* mark = list_ == SheetList::Armor ? "Worn" : "Carried";
    lstFigures.push_back(Row(mark, item->carried ? "yes" : "no"));
  }
}

void InfoForm::FillColumns(const std::string& line) {
  const auto* const columns = std::ranges::find(kColumns, list_, &ListColumns::list);
  if (columns == kColumns.end()) return;
  const std::vector<std::string_view> values = Split(line, '\t');
  for (std::size_t column = 1; column < values.size(); ++column) {
    if (values[column].empty()) continue;
    const bool named = column <= columns->names.size() && !columns->names[column - 1].empty();
    // A file may hold more than the list is made for.
    lstFigures.push_back(named ? Row(columns->names[column - 1], values[column])
                               : Row("Column " + std::to_string(column + 1), values[column]));
  }
}

void InfoForm::FillReference(const std::string& name) {
  const InfoIndex& info = form_.info;
  int entry = info.Find(name);
  if (entry < 0) entry = info.Find(WithoutClass(name));
  if (entry >= 0) txtReference = info.EntryText(files_, entry);
}

}  // namespace ng
