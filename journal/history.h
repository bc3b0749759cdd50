#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "journal/stage.h"
#include "journal/steps.h"
#include "journal/timeline.h"

namespace ng {

/// One line of the history.
struct HistoryLine {
  /// The words are those of a new combat turn or pass, and nothing else is there.
  bool heading = false;
  /// "21:43".
  std::string hour;
  std::string who;
  std::string what;
  /// Every value of a combatant that changed, what was rolled and what was shown.
  std::string changes;
  /// How many entries are done when the line's step is.
  std::size_t entries = 0;
  /// The combatant that the line is about, 0 for none.
  Slot slot;
};

/// Tells what happened by playing the timeline on a stage of its own and comparing the fight before
/// and after each step. It goes on where it stopped, and begins again only when something that it
/// has told was replaced.
class History {
 public:
  explicit History(Contents& contents) : contents_(contents) {}

  /// Tells what there is to tell of a fight that was begun with `head`.
  void Follow(const JournalHead& head, const Timeline& timeline, const Steps& steps);
  /// The next time all is told again.
  void Forget() { generation_ = -1; }
  const std::vector<HistoryLine>& Lines() const { return lines_; }

 private:
  void Begin(const JournalHead& head, const Timeline& timeline);
  void Tell(const Entry& entry, const Steps& steps);
  void EndStep();
  void TellHeading();

  Contents& contents_;
  std::unique_ptr<Stage> stage_;
  std::unique_ptr<Timeline::Place> place_;
  int generation_ = -1;
  std::vector<HistoryLine> lines_;
  /// The step that is being told: the fight before it, and what is known so far.
  Fight before_;
  HistoryLine step_;
  bool open_ = false;
  Integer turn_;
  Integer pass_;
};

}  // namespace ng
