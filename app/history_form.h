#pragma once

#include <string>
#include <vector>

namespace ng {

/// Stands before the words of a line whose step was undone.
inline constexpr const char* kTakenBack = "Taken back: ";

/// The history window, frmHistory: what happened, a line a step, under headings for combat turn and
/// pass. The desk fills it.
struct HistoryForm {
  bool open = false;
  /// Only lines that contain this are listed.
  std::string txtFind;
  /// "Everybody", then the names of those whom the lines are about.
  std::vector<std::string> cmbWho;
  int cmbWhoIndex = 0;
  /// Columns: hour, who, what, what changed. A heading has its words in the second column alone;
  /// what was undone has kTakenBack before its words.
  std::vector<std::string> lstLines;
  int lstLinesIndex = -1;

  /// What the entries of the menu say of the next step: "Undo: Brand, physical deadly wound".
  std::string mnuEditUndo = "Nothing to undo";
  std::string mnuEditRedo = "Nothing to redo";
};

/// The dialog of recent fights, frmRecent. The desk fills it.
struct RecentForm {
  bool open = false;
  /// Columns: when, combatants, combat turn, state file, how it was left.
  std::vector<std::string> lstFights;
  int lstFightsIndex = -1;
  /// What is to be said of the selected fight.
  std::string lblFight;
};

}  // namespace ng
