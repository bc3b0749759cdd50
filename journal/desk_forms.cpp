#include "journal/desk_forms.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "base/runtime_error.h"
#include "base/text.h"
#include "journal/desk.h"

namespace ng {
namespace {

constexpr const char* kEverybody = "Everybody";
constexpr const char* kTextFilter = "Text Files (*.txt)|*.txt";

/// The columns of a line of the list.
std::string Columns(const HistoryLine& line, bool undone) {
  if (line.heading) return "\t" + line.what;
  return line.hour + "\t" + line.who + "\t" + (undone ? kTakenBack : "") + line.what + "\t" +
         line.changes;
}

/// Everybody whom the lines are about, in rising order.
std::vector<std::string> NamesIn(const std::vector<HistoryLine>& lines) {
  std::vector<std::string> names;
  for (const HistoryLine& line : lines) {
    if (!line.who.empty()) names.push_back(line.who);
  }
  std::ranges::sort(names, LessIgnoringCase);
  names.erase(std::unique(names.begin(), names.end()), names.end());
  names.insert(names.begin(), kEverybody);
  return names;
}

/// "Ganger" is in "Ganger: physical 0 to 3" and not in "Ganger::3: physical 0 to 3".
bool IsAbout(const HistoryLine& line, const std::string& name) {
  if (line.who == name) return true;
  const std::string changes = "; " + line.changes;
  return std::ranges::any_of(
      std::to_array<const char*>({": ", " comes in", " is removed"}),
      [&](const char* told) { return Contains(changes, "; " + name + told); });
}

/// "Undo: Brand, physical deadly wound", "Nothing to undo".
std::string Named(const std::string& what, const std::string& step) {
  return step.empty() ? "Nothing to " + std::string(1, AsciiLower(what[0])) + what.substr(1)
                      : what + ": " + step;
}

std::string LeftHow(const KeptFight& fight, bool here) {
  if (here) return "this fight";
  if (fight.held) return "open elsewhere";
  return fight.closed ? "" : "not closed";
}

std::string StateFileOf(const KeptFight& fight) {
  const std::string& path = fight.summary.stateFile;
  if (path.empty()) return "never saved";
  return path.substr(path.find_last_of("\\/") + 1);
}

/// "1 combatant", "12 combatants".
std::string Combatants(int count) {
  return std::to_string(count) + (count == 1 ? " combatant" : " combatants");
}

}  // namespace

void DeskForms::Do(const Act& act) {
  Session& session = desk_.session();
  HistoryForm& history = session.history;
  RecentForm& recent = session.recent;
  if (act.control == "mnuEditUndo") return desk_.Undo();
  if (act.control == "mnuEditRedo") return desk_.Redo();
  if (act.control == "mnuViewHistory") {
    history.open = true;
  } else if (act.control == "frmHistory.Close") {
    history.open = false;
  } else if (act.control == "frmHistory.txtFind") {
    history.txtFind = act.text;
  } else if (act.control == "frmHistory.cmbWho") {
    history.cmbWhoIndex = act.index;
  } else if (act.control == "frmHistory.lstLines_Select") {
    history.lstLinesIndex = act.index;
    return;
  } else if (act.control == "frmHistory.cmdShow") {
    return ShowCombatant();
  } else if (act.control == "frmHistory.cmdBack") {
    return GoBack();
  } else if (act.control == "frmHistory.cmdSave") {
    return SaveHistory();
  } else if (act.control == "mnuFileRecent") {
    return ShowRecent();
  } else if (act.control == "frmRecent.lstFights_Select") {
    return SelectFight(act.index);
  } else if (act.control == "frmRecent.cmdTakeUp") {
    return TakeUpSelected();
  } else if (act.control == "frmRecent.cmdCancel") {
    recent.open = false;
    return;
  } else {
    throw std::invalid_argument("no command of the desk is named " + act.control);
  }
  Follow();
}

void DeskForms::Begin() {
  history_.Forget();
  Follow();
}

void DeskForms::Follow() {
  HistoryForm& form = desk_.session().history;
  form.mnuEditUndo = Named("Undo", desk_.steps().UndoName());
  form.mnuEditRedo = Named("Redo", desk_.steps().RedoName());
  if (!desk_.session().history.open) return;
  history_.Follow(desk_.head(), desk_.timeline(), desk_.steps());
  ListHistory();
}

void DeskForms::ListHistory() {
  HistoryForm& form = desk_.session().history;
  const std::vector<HistoryLine>& lines = history_.Lines();
  const std::string chosen =
      form.cmbWhoIndex > 0 && form.cmbWhoIndex < static_cast<int>(form.cmbWho.size())
          ? form.cmbWho[static_cast<std::size_t>(form.cmbWhoIndex)]
          : std::string();
  form.cmbWho = NamesIn(lines);
  const auto kept = std::ranges::find(form.cmbWho, chosen);
  form.cmbWhoIndex = chosen.empty() || kept == form.cmbWho.end()
                         ? 0
                         : static_cast<int>(kept - form.cmbWho.begin());
  form.lstLines.clear();
  listed_.clear();
  std::size_t heading = lines.size();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const HistoryLine& line = lines[i];
    if (line.heading) {
      heading = i;
      continue;
    }
    const std::string columns = Columns(line, line.entries > desk_.timeline().Cursor());
    if (!ContainsIgnoringCase(columns, form.txtFind)) continue;
    if (form.cmbWhoIndex > 0 && !IsAbout(line, chosen)) continue;
    if (heading < lines.size()) {
      form.lstLines.push_back(Columns(lines[heading], false));
      listed_.push_back(heading);
      heading = lines.size();
    }
    form.lstLines.push_back(columns);
    listed_.push_back(i);
  }
  form.lstLinesIndex = std::min(form.lstLinesIndex, static_cast<int>(listed_.size()) - 1);
}

const HistoryLine* DeskForms::SelectedLine() const {
  const int index = desk_.session().history.lstLinesIndex;
  if (index < 0 || index >= static_cast<int>(listed_.size())) return nullptr;
  return &history_.Lines()[listed_[static_cast<std::size_t>(index)]];
}

void DeskForms::ShowCombatant() {
  const HistoryLine* line = SelectedLine();
  if (line == nullptr) return;
  const int row = desk_.session().main.fight.FindInOrder(line->slot).Value();
  if (row > 0) desk_.Do({"GridX_Click", row, {}});
}

void DeskForms::GoBack() {
  const HistoryLine* line = SelectedLine();
  if (line != nullptr && !line->heading) desk_.GoTo(line->entries);
}

void DeskForms::SaveHistory() {
  const RealPorts& ports = desk_.ports();
  const auto path = ports.prompts.SaveFile({"Save History", kTextFilter, {}, "txt"});
  if (!path || path->empty()) return;
  std::string text;
  for (const std::string& line : desk_.session().history.lstLines) {
    text += Replaced(line, "\t", "  ") + "\r\n";
  }
  try {
    ports.files.Replace(*path, text);
    desk_.session().main.statusMessage = "History saved";
  } catch (const RuntimeError& error) {
    ports.prompts.Message(std::string(error.what()) + "\r\n" + *path);
  }
}

void DeskForms::ShowRecent() {
  RecentForm& form = desk_.session().recent;
  fights_ = desk_.KeptFights();
  form.lstFights.clear();
  for (const KeptFight& fight : fights_) {
    form.lstFights.push_back(fight.when + "\t" + std::to_string(fight.summary.combatants) + "\t" +
                             std::to_string(fight.summary.combatTurn) + "\t" + StateFileOf(fight) +
                             "\t" + LeftHow(fight, fight.name == desk_.JournalName()));
  }
  form.open = true;
  SelectFight(fights_.empty() ? -1 : 0);
  desk_.ports().prompts.ShowModal(ModalForm::Recent);
}

void DeskForms::SelectFight(int index) {
  RecentForm& form = desk_.session().recent;
  const bool there = index >= 0 && index < static_cast<int>(fights_.size());
  form.lstFightsIndex = there ? index : -1;
  form.lblFight = fights_.empty() ? "No fight has been kept yet." : "";
  if (!there) return;
  const KeptFight& fight = fights_[static_cast<std::size_t>(index)];
  form.lblFight = "The fight of " + fight.when + ", " + Combatants(fight.summary.combatants) +
                  ", combat turn " + std::to_string(fight.summary.combatTurn) +
                  (fight.summary.stateFile.empty() ? "" : ", saved to " + fight.summary.stateFile);
  if (fight.name == desk_.JournalName()) {
    form.lblFight += ". It is the fight in the window.";
  } else if (fight.held) {
    form.lblFight += ". Another running program has it open, so it cannot be taken up here.";
  }
}

void DeskForms::TakeUpSelected() {
  RecentForm& form = desk_.session().recent;
  if (form.lstFightsIndex < 0) return;
  const KeptFight fight = fights_[static_cast<std::size_t>(form.lstFightsIndex)];
  if (fight.held || fight.name == desk_.JournalName()) return;
  form.open = false;
  desk_.TakeUp(fight.name);
}

void DeskForms::OfferUnclosed() {
  const std::optional<KeptFight> fight = desk_.Unclosed();
  if (!fight) return;
  const std::string hour = fight->when.substr(std::min<std::size_t>(fight->when.size(), 11));
  const bool yes = desk_.ports().prompts.AskToTakeUp(
      "The fight of " + hour + " with " + Combatants(fight->summary.combatants) + ", combat turn " +
      std::to_string(fight->summary.combatTurn) + ", was not closed. Take it up again?");
  if (yes) {
    desk_.TakeUp(fight->name);
  } else {
    desk_.Decline(fight->name);
  }
}

}  // namespace ng
