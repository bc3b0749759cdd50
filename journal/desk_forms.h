#pragma once

#include <string>
#include <vector>

#include "journal/history.h"
#include "journal/kept_fights.h"

namespace ng {

class Desk;

/// The commands of the desk: undo and redo, the history window and the recent fights. What they
/// show is in the session's forms, so that the windows are painted like all others.
class DeskForms {
 public:
  DeskForms(Desk& desk, Contents& contents) : desk_(desk), history_(contents) {}

  void Do(const Act& act);
  /// To be called when an act was done or undone: the open history follows.
  void Follow();
  /// Another fight is on the desk.
  void Begin();
  /// Asks whether to take up the fight that was not closed, where there is one.
  void OfferUnclosed();

 private:
  void ListHistory();
  void ShowRecent();
  void SelectFight(int index);
  void TakeUpSelected();
  const HistoryLine* SelectedLine() const;
  void ShowCombatant();
  void GoBack();
  void SaveHistory();

  Desk& desk_;
  History history_;
  /// The lines behind those of the list.
  std::vector<std::size_t> listed_;
  std::vector<KeptFight> fights_;
};

}  // namespace ng
