#pragma once

#include <array>
#include <string>

#include "base/integer.h"

namespace ng {

/// The modal dialog in which the game master picks the base level or the specialisation of a skill
/// whose line carries both ("Pistols [4/6]"): the form behind frmSelSkillLevel.
class SkillLevelForm {
 public:
  static constexpr int kBase = 0;
  static constexpr int kSpecialisation = 1;

  /// The level handed back. A line that offers a choice leaves the earlier one until a button is
  /// pressed, and so does closing the dialog by its frame.
  Integer SelValue;

  // What the controls show.
  std::string lblSkill;
  /// The captions of the two buttons.
  std::array<std::string, 2> cmdSkillSelect;
  /// The dialog is open until a button or its frame closes it.
  bool open = false;

  /// Takes a skill line. A single level in brackets, or a line without brackets (level 0), is the
  /// answer already; two levels parted by "/" make `valid` true and want the dialog shown. Overflow
  /// when the first "]" does not stand behind the first "[".
  void SkillString(const std::string& line);

  /// Whether the dialog has a choice to offer, or a button has made one.
  Boolean valid() const { return valid_; }

  /// Takes the specialisation for every index but 0, and closes the dialog.
  void cmdSkillSelect_Click(int index);

  /// Closed by its frame: nothing is chosen.
  void Form_Close() { open = false; }

 private:
  Boolean valid_;
  Integer baseLevel_;
  Integer specialisationLevel_;
};

}  // namespace ng
