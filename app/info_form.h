#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/ports.h"
#include "import/character_display.h"

namespace ng {

class MainForm;

/// The information window, frmInfo: all details of the line that was selected last on one of the
/// pages, and what the reference file says of it.
class InfoForm {
 public:
  InfoForm(const MainForm& form, Files& files) : form_(form), files_(files) { marked_.fill(-1); }

  bool open = false;
  std::string lblItem;
  /// Columns: name of the detail, value.
  std::vector<std::string> lstFigures;
  std::string txtReference;

  /// A line was selected. The open window follows.
  void Mark(SheetList list, int index);
  /// Somebody else is displayed, none of whose lines is selected. An open window goes on showing
  /// what it shows, for comparison.
  void MarkNothing() { marked_.fill(-1); }
  /// The selected line has changed; the open window shows it again.
  void Refresh() {
    if (open) Fill();
  }
  /// The selected line of a list, -1 for none.
  int Marked(SheetList list) const { return marked_[static_cast<std::size_t>(list)]; }

  /// Opens at the line that was selected last.
  void Form_Load();
  /// Opens at the selected line of this list.
  void Form_Load(SheetList list);

 private:
  void Fill();
  void FillFigures(const std::string& line);
  void FillColumns(const std::string& line);
  void FillReference(const std::string& name);

  const MainForm& form_;
  Files& files_;
  std::array<int, kSheetLists> marked_{};
  SheetList list_ = SheetList::Weapon;
};

}  // namespace ng
