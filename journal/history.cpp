#include "journal/history.h"

#include <memory>

#include "app/commands.h"
#include "base/number_text.h"
#include "base/text.h"
#include "journal/field_words.h"

namespace ng {
namespace {

constexpr std::size_t kHourPlace = 11;
constexpr std::size_t kHourLength = 5;

std::string HourOf(const Entry& entry) {
  return entry.when.size() < kHourPlace ? std::string()
                                        : entry.when.substr(kHourPlace, kHourLength);
}

void Append(std::string& text, const std::string& more) {
  if (more.empty()) return;
  if (!text.empty()) text += "; ";
  text += more;
}

/// "8 dice against 7, 3 successes: 07 05 14".
std::string RollOf(const DiceRoller& roller) {
  return roller.txtNumDice + " dice against " + roller.txtTargetNum + ", successes " +
         roller.txtSuccess + ": " + std::string(Trimmed(roller.txtResult));
}

std::string OneLine(const std::string& text) {
  return Replaced(Replaced(std::string(Trimmed(text)), "\r\n", " "), "\r", " ");
}

}  // namespace

void History::Begin(const JournalHead& head, const Timeline& timeline) {
  lines_.clear();
  stage_ = std::make_unique<Stage>(std::optional<RealPorts>(), contents_);
  stage_->Set(head);
  place_ = std::make_unique<Timeline::Place>(contents_);
  generation_ = timeline.Generation();
  open_ = false;
  turn_ = -1;
}

void History::Follow(const JournalHead& head, const Timeline& timeline, const Steps& steps) {
  if (timeline.Generation() != generation_) Begin(head, timeline);
  // The last step may still grow: its line is told again.
  if (open_ && !lines_.empty()) lines_.pop_back();
  timeline.Walk(*place_, timeline.Size(), [&](const Entry& entry) {
    Tell(entry, steps);
    return true;
  });
  if (open_) EndStep();
}

void History::Tell(const Entry& entry, const Steps& steps) {
  const std::size_t index = place_->entries;
  const std::optional<Steps::Name> begun = steps.BeginningAt(index);
  if (begun) {
    if (open_) EndStep();
    before_ = stage_->session().main.fight;
    step_ = {false, HourOf(entry), begun->who, begun->words, {}, 0, begun->slot};
    open_ = true;
  }
  stage_->Play(entry);
  if (!open_) return;
  const MainForm& main = stage_->session().main;
  step_.entries = index + 1;
  // A step of the turn is about whoever has it now.
  if (begun && begun->who.empty() && main.fight.SeqNum != before_.SeqNum) {
    step_.who = main.fight.RecordOf(main.fight.CurrentPCpointer).Name;
    step_.slot = main.fight.CurrentPCpointer;
  }
  if (entry.act.control == "ngdr.cmdRoll") Append(step_.changes, RollOf(main.ngdr));
  const Command* command = FindCommand(entry.act.control);
  const bool saved = command != nullptr && command->effect == Effect::Affair;
  if (saved && !main.statusMessage.empty() && entry.act.control == "mnuFileSave") {
    Append(step_.changes, main.statusMessage);
  }
  for (const std::string& told : stage_->tape.Told())
    Append(step_.changes, "\"" + OneLine(told) + "\"");
}

void History::TellHeading() {
  const Fight& fight = stage_->session().main.fight;
  if (fight.RoundCount == turn_ && fight.PhaseCnt == pass_) return;
  turn_ = fight.RoundCount;
  pass_ = fight.PhaseCnt;
  if (turn_ == 0) return;
  HistoryLine heading;
  heading.heading = true;
  heading.what = "Combat turn " + PlainText(turn_) + ", pass " + PlainText(pass_);
  heading.entries = step_.entries;
  lines_.push_back(heading);
}

void History::EndStep() {
  TellHeading();
  const Fight& after = stage_->session().main.fight;
  HistoryLine line = step_;
  const std::string told = line.changes;
  line.changes = ChangesOf(before_, after, line.who);
  Append(line.changes, told);
  lines_.push_back(std::move(line));
}

}  // namespace ng
