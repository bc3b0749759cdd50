#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/ports.h"
#include "import/character_display.h"

namespace ng {

class MainForm;

/// The information window, frmInfo: every figure of the line that was marked last on one of the
/// pages, and what the reference file says of it.
class InfoForm {
 public:
  InfoForm(const MainForm& form, Files& files) : form_(form), files_(files) { marked_.fill(-1); }

  bool open = false;
  std::string lblItem;
  /// Columns: name of the figure, value.
  std::vector<std::string> lstFigures;
  std::string txtReference;

  /// A line was marked. The open window follows.
  void Mark(SheetList list, int index);
  /// Somebody else is displayed, none of whose lines is marked. An open window goes on showing what
  /// it shows, for comparison.
  void MarkNothing() { marked_.fill(-1); }
  /// The marked line has changed; the open window shows it anew.
  void Refresh() {
    if (open) Fill();
  }
  /// The marked line of a list, -1 for none.
  int Marked(SheetList list) const { return marked_[static_cast<std::size_t>(list)]; }

  /// Opens at the line that was marked last.
  void Form_Load();
  /// Opens at the marked line of this list.
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
