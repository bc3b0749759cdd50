#include "golden/snapshot.h"

#include <map>
#include <string_view>
#include <utility>

#include "app/controls.h"
#include "app/form_windows.h"
#include "base/number_text.h"
#include "base/text.h"
#include "fakes/fakes.h"

namespace ng {
namespace {

constexpr const char* kClosed = "closed";

class SnapshotVisitor : public ControlVisitor {
 public:
  SnapshotVisitor(Snapshot& snapshot, std::string prefix)
      : snapshot_(snapshot), prefix_(std::move(prefix)) {}

  void Text(ControlName control, const std::string& text) override {
    Add(Name(control), Quoted(text));
  }
  void Check(ControlName control, bool checked) override {
    Add(Name(control), checked ? "checked" : "unchecked");
  }
  void Choice(ControlName control, int chosen) override {
    Add(Name(control), std::to_string(chosen));
  }
  void Level(ControlName control, int boxes) override { Add(Name(control), std::to_string(boxes)); }
  void List(ControlName control, const std::vector<std::string>& lines) override {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      Add(Name(control) + " " + std::to_string(i), Quoted(lines[i]));
    }
  }
  void CheckList(ControlName control, const std::vector<CarriedLine>& lines) override {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      Add(Name(control) + " " + std::to_string(i),
          (lines[i].carried ? "[x] " : "[ ] ") + Quoted(lines[i].text));
    }
  }
  void Turn(ControlName control, TurnState state) override {
    Add(Name(control), Quoted(LookOf(state).badge));
  }
  void Grid(ControlName control, const InitiativeGrid& grid, int shownRow) override {
    for (int row = 1; row <= grid.RowCount(); ++row) {
      const InitiativeGrid::Row& cells = grid.RowAt(row);
      std::string value;
      for (const std::string& text : cells.text) value += Quoted(text) + " ";
      Add(Name(control) + " row " + std::to_string(row),
          value + LookOf(cells.colour[0]).colourName);
    }
    Add(Name(control) + " cell",
        std::to_string(grid.CurrentRow()) + " " + std::to_string(grid.CurrentColumn()));
    Add(Name(control) + " shown", std::to_string(shownRow));
  }

 private:
  std::string Name(ControlName control) const {
    std::string name = prefix_ + control.name;
    if (control.index != ControlName::kSingle) name += " " + std::to_string(control.index);
    return name;
  }
  void Add(std::string name, std::string value) {
    snapshot_.emplace_back(std::move(name), std::move(value));
  }

  Snapshot& snapshot_;
  /// The window's name before the control's, empty for the main window.
  std::string prefix_;
};

void AddFight(const Fight& fight, Snapshot& snapshot) {
  for (const FightField& field : FightFields()) {
    snapshot.emplace_back(field.name, PlainText(NumberIn(fight, field.member)));
  }
  snapshot.emplace_back("GlobalEvents", Quoted(fight.GlobalEvents));
  for (int i = 0; i <= Fight::kLastSlot; ++i) {
    const std::string number = std::to_string(i);
    snapshot.emplace_back("InitOrder " + number,
                          PlainText(fight.InitOrder[OrderPosition::From(i)].Value()));
    snapshot.emplace_back("Turn" + number, PlainText(fight.TurnHistory[i].Turn));
    snapshot.emplace_back("2Turn" + number, PlainText(fight.TurnHistory[i].TwoTurn));
    for (const PlayerField& field : PlayerFields()) {
      snapshot.emplace_back("Slot" + number + " " + field.name,
                            Quoted(FieldText(fight.Players[Slot::From(i)], field)));
    }
  }
}

void AddWindows(const Session& session, Snapshot& snapshot) {
  for (const FormWindow& window : FormWindows()) {
    const bool open = window.open(session);
    const bool main = *window.prefix == '\0';
    if (!main) snapshot.emplace_back(window.name, open ? "open" : kClosed);
    // The dice roller is there from the start, hidden or not.
    const bool roller = std::string_view(window.name) == "ngdr";
    if (!open && !roller) continue;
    SnapshotVisitor visitor(snapshot, window.prefix);
    window.visit(session, visitor);
  }
}

}  // namespace

Snapshot TakeSnapshot(const Session& session) {
  Snapshot snapshot;
  AddFight(session.main.fight, snapshot);
  AddWindows(session, snapshot);
  return snapshot;
}

std::vector<std::string> Differences(const Snapshot& before, const Snapshot& after) {
  std::map<std::string, std::string> old(before.begin(), before.end());
  const std::map<std::string, std::string> now(after.begin(), after.end());
  std::vector<std::string> lines;
  for (const auto& [name, value] : after) {
    const auto found = old.find(name);
    if (found == old.end() || found->second != value) lines.push_back(name + " = " + value);
    if (found != old.end()) old.erase(found);
  }
  for (const auto& [name, value] : before) {
    if (old.count(name) == 0) continue;
    // What was in a window that was closed went with it.
    const auto window = now.find(name.substr(0, name.find('.')));
    if (window == now.end() || window->second != kClosed) lines.push_back(name + " gone");
  }
  return lines;
}

}  // namespace ng
