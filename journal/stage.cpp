#include "journal/stage.h"

#include "app/commands.h"
#include "app/startup.h"
#include "journal/digest.h"

namespace ng {
namespace {

/// What is played again opens no windows.
class NoWindows : public StartupWindows {
 public:
  void ShowSplash() override {}
  void LoadMain() override {}
  void UnloadSplash() override {}
  void ShowMain() override {}
};

}  // namespace

Stage::Stage(std::optional<RealPorts> real, Contents& contents) : tape(real, contents) {
  tape.perform = [this](const Act& act) { session_->Do(act); };
}

void Stage::Set(const JournalHead& head) {
  uniform_.emplace(head.seed);
  session_.emplace(Environment{tape, *uniform_, tape, tape, head.location, {}});
}

bool Stage::Play(const Entry& entry) {
  const bool start = entry.act.control == kStartAct;
  // An act that this version of the program does not know.
  if (!start && FindCommand(entry.act.control) == nullptr) return false;
  tape.Replay(entry);
  if (start) {
    NoWindows windows;
    // A start that an error ends does so again.
    static_cast<void>(Main(*session_, windows));
  } else {
    session_->Do(entry.act);
  }
  tape.Stop();
  return !tape.Mismatched();
}

std::optional<LostWay> Audit(Journal& journal) {
  Stage stage({}, journal.contents);
  stage.Set(journal.head);
  std::optional<LostWay> lost;
  int followed = 0;
  journal.timeline.ForEach(journal.timeline.Size(), journal.contents, [&](const Entry& entry) {
    bool same = stage.Play(entry);
    const Fight& fight = stage.session().main.fight;
    if (!entry.digest.empty()) same = same && FightDigest(fight) == entry.digest;
    if (!same) {
      lost = LostWay{followed};
      return false;
    }
    followed = fight.RoundCount.Value();
    return true;
  });
  return lost;
}

}  // namespace ng
