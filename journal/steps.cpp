#include "journal/steps.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "app/commands.h"
#include "base/text.h"

namespace ng {
namespace {

/// What such an act does, in the words of its command.
std::string WordsOf(const Command& command, int element) {
  std::string words = PlainWords(command.text);
  if (words.empty()) return command.name;
  words = Replaced(words, "{track}", element == 0 ? "physical" : "stun");
  return Replaced(words, "{hand}", element == 0 ? "primary" : "secondary");
}

/// Whom the act is about: the row that is typed into, the one whose test it is, and otherwise
/// whoever is displayed; 0 for the whole table.
Slot SubjectOf(const Session& session, const Act& act) {
  const MainForm& main = session.main;
  const std::string_view control = act.control;
  const Command* command = FindCommand(control);
  if (command == nullptr) return 0;
  if (command->menu != Menu::None && command->menu != Menu::Combatant) return 0;
  if (control == "Form_Drop" || control.starts_with("frmGM.")) return 0;
  if (control.starts_with("ngdr.")) return main.ngdr.Tester();
  if (!control.starts_with("GridX_")) return main.fight.CurrentPCpointer;
  return main.fight.InitOrder[OrderPosition::From(main.GridX.CurrentRow())];
}

std::string Joined(const Steps::Name& name) {
  return name.who.empty() ? name.words : name.who + ", " + name.words;
}

std::vector<Integer> Counters(const Fight& fight) {
  std::vector<Integer> counters;
  for (const FightField& field : FightFields()) counters.push_back(NumberIn(fight, field.member));
  return counters;
}

/// A damaged file may have left any slot.
const PlayerRecord& RecordIn(const Fight& fight, Slot slot) {
  const bool held = slot > 0 && slot <= Fight::kLastSlot;
  return fight.Players[held ? slot : Slot(0)];
}

const PlayerRecord& DisplayedIn(const Fight& fight) {
  return RecordIn(fight, fight.CurrentPCpointer);
}

}  // namespace

/// A key in the grid goes to the row that it is typed into; its code is the act's index.
Steps::Box Steps::BoxOf(const Session& session, const Act& act) {
  if (act.control != "GridX_KeyPress") return {act.control, act.index};
  return {act.control, session.main.GridX.CurrentRow()};
}

void Steps::Before(const Session& session, const Act& act) {
  box_ = BoxOf(session, act);
  const MainForm& main = session.main;
  displayed_ = DisplayedIn(main.fight);
  slot_ = SubjectOf(session, act);
  who_ = RecordIn(main.fight, slot_).Name;
  counters_ = Counters(main.fight);
  delayChecked_ = main.actions.delayChecked;
  inactiveChecked_ = main.actions.inactiveChecked;
}

bool Steps::Changed(const Session& session, const Act& act, bool refused) {
  const Command* command = FindCommand(act.control);
  const std::optional<Box> before = std::exchange(edited_, std::nullopt);
  goesOn_ = false;
  if (command == nullptr || !IsChange(command->effect)) return false;
  const MainForm& main = session.main;
  const bool changed = !refused || displayed_ != DisplayedIn(main.fight) ||
                       counters_ != Counters(main.fight) ||
                       delayChecked_ != main.actions.delayChecked ||
                       inactiveChecked_ != main.actions.inactiveChecked;
  if (changed && command->effect == Effect::Edit) {
    edited_ = box_;
    goesOn_ = before == box_ && CanUndo();
  }
  return changed;
}

void Steps::Add(const Act& act, std::size_t entry) {
  steps_.resize(done_);
  if (goesOn_) return;
  steps_.push_back({static_cast<std::uint32_t>(entry), static_cast<std::int16_t>(slot_.Value()),
                    NumberOf(who_), static_cast<std::int16_t>(act.index),
                    FindCommand(act.control)});
  done_ = steps_.size();
}

void Steps::Clear() {
  steps_.clear();
  done_ = 0;
  edited_.reset();
}

std::string Steps::UndoName() const {
  return CanUndo() ? Joined(NameOf(steps_[done_ - 1])) : std::string();
}

std::string Steps::RedoName() const {
  return CanRedo() ? Joined(NameOf(steps_[done_])) : std::string();
}

std::size_t Steps::EntriesAfterRedo(std::size_t size) const {
  return done_ + 1 < steps_.size() ? steps_[done_ + 1].first : size;
}

Steps::Name Steps::NameOf(const Step& step) const {
  return {Slot::From(step.slot), names_[step.who], WordsOf(*step.command, step.element)};
}

std::uint16_t Steps::NumberOf(const std::string& who) {
  const auto found = std::ranges::find(names_, who);
  const auto number = found - names_.begin();
  if (found == names_.end()) names_.push_back(who);
  return static_cast<std::uint16_t>(number);
}

std::optional<Steps::Name> Steps::BeginningAt(std::size_t entry) const {
  const auto step = std::ranges::lower_bound(steps_, entry, {}, &Step::first);
  if (step == steps_.end() || step->first != entry) return {};
  return NameOf(*step);
}

std::size_t Steps::Bytes() const { return steps_.capacity() * sizeof(Step); }

void Steps::MoveTo(std::size_t entries) {
  done_ = 0;
  while (done_ < steps_.size() && steps_[done_].first < entries) ++done_;
  edited_.reset();
}

}  // namespace ng
