#include "journal/desk.h"

#include <stdexcept>
#include <utility>

#include "app/commands.h"
#include "base/runtime_error.h"
#include "journal/digest.h"

namespace ng {
namespace {

/// Sets a flag for as long as it lives.
class While {
 public:
  explicit While(bool& flag) : flag_(flag) { flag_ = true; }
  ~While() { flag_ = false; }
  While(const While&) = delete;
  While& operator=(const While&) = delete;

 private:
  bool& flag_;
};

std::string Sentence(JournalRecords::End end) {
  switch (end) {
    case JournalRecords::End::Torn:
      return "The last act of this fight was not written to its end and is lost";
    case JournalRecords::End::Damaged:
      return "The journal of this fight is damaged; it is taken up as it was before the damage";
    case JournalRecords::End::Whole:
      break;
  }
  return {};
}

/// What was chosen for the eyes and not for the fight; undo leaves it alone.
struct Looks {
  bool darkColours;
  bool statusBarVisible;
  WindowLayout layout;
  std::string lblJournal;
  HistoryForm history;

  static Looks Of(const Session& session) {
    const MainForm& form = session.main;
    return {form.darkColours, form.statusBarVisible, form.layout, form.lblJournal, session.history};
  }
  void GiveTo(Session& session) const {
    MainForm& form = session.main;
    session.history = history;
    form.darkColours = darkColours;
    form.statusBarVisible = statusBarVisible;
    form.layout = layout;
    form.lblJournal = lblJournal;
  }
};

}  // namespace

Desk::Desk(const Outside& outside)
    : outside_(outside),
      head_(outside.head),
      live_(outside.ports, contents_),
      writer_(outside.journals, outside.clock),
      forms_(*this, contents_) {
  live_.Set(head_);
  writer_.Begin(head_);
}

bool Desk::Start(StartupWindows& windows) {
  bool started = false;
  Record({kStartAct}, [&] { started = Main(session(), windows); });
  return started;
}

void Desk::Do(const Act& act) {
  if (running_) {
    const Command* command = FindCommand(act.control);
    // While an act runs nothing is undone.
    if (command != nullptr && command->effect == Effect::Desk) return;
    live_.tape.NoteModalAct(act);
    session().Do(act);
    return;
  }
  const Command* command = FindCommand(act.control);
  if (command == nullptr) throw std::invalid_argument("no command is named " + act.control);
  if (command->effect == Effect::Desk) return forms_.Do(act);
  Record(act, [&] { session().Do(act); });
  forms_.Follow();
}

void Desk::Record(const Act& act, const std::function<void()>& run) {
  NewEntry added{{act, outside_.clock.Now(), {}, {}, {}}, {}};
  const Integer turn = session().main.fight.RoundCount;
  steps_.Before(session(), act);
  live_.tape.Record(added.entry);
  {
    const While running(running_);
    run();
  }
  live_.tape.Stop();
  const MainForm& main = session().main;
  // A fight that is being closed is taken up as it was before the closing.
  if (main.closing) return;
  if (main.fight.RoundCount != turn) added.entry.digest = FightDigest(main.fight);
  added.contents = live_.tape.NewContents();
  const bool changed = steps_.Changed(session(), act, live_.tape.Refused());
  if (!changed && timeline_.Cursor() < timeline_.Size()) {
    waiting_.push_back(std::move(added));
    return;
  }
  for (const NewEntry& look : std::exchange(waiting_, {})) Keep(look);
  Keep(added);
  if (changed) steps_.Add(act, timeline_.Size() - 1);
  writer_.WriteSummary(Summary());
  if (steps_.CanUndo()) writer_.Keep();
  TellNotice(writer_.TakeNotice());
  const Command* command = FindCommand(act.control);
  if (command != nullptr && command->menu == Menu::Turn) writer_.Flush();
}

void Desk::Keep(const NewEntry& added) {
  const std::string lines = lines_.Lines(added.entry);
  timeline_.Add(lines);
  writer_.WriteEntry(lines, contents_, added.contents);
}

void Desk::Forget(const std::vector<NewEntry>& looks) {
  for (const NewEntry& look : looks) {
    for (const std::string& digest : look.contents) contents_.erase(digest);
  }
}

FightSummary Desk::Summary() const {
  const MainForm& main = session().main;
  return {main.fight.CountPlayers().Value(), main.fight.RoundCount.Value(),
          main.fightFiles.onDisk().path};
}

void Desk::Undo() {
  if (!running_ && steps_.CanUndo()) GoTo(steps_.EntriesAfterUndo());
}

void Desk::Redo() {
  if (!running_ && steps_.CanRedo()) GoTo(steps_.EntriesAfterRedo(timeline_.Size()));
}

void Desk::GoTo(std::size_t entries) {
  const std::vector<std::string> log = session().main.gmLog.lstGMinfo();
  const Looks looks = Looks::Of(session());
  // What the disk holds does not change with the fight.
  const OnDisk onDisk = session().main.fightFiles.onDisk();
  Forget(std::exchange(waiting_, {}));
  timeline_.SetCursor(entries);
  PlayTo(entries);
  looks.GiveTo(session());
  session().main.fightFiles.SetOnDisk(onDisk);
  steps_.MoveTo(entries);
  lines_ = {};
  writer_.WriteCursor(entries);
  writer_.WriteSummary(Summary());
  TellNotice(writer_.TakeNotice());
  LogWhatMoved(log);
  forms_.Follow();
}

void Desk::PlayTo(std::size_t entries) {
  live_.Set(head_);
  timeline_.ForEach(entries, contents_, [this](const Entry& entry) {
    live_.Play(entry);
    return true;
  });
}

void Desk::LogWhatMoved(const std::vector<std::string>& before) {
  const std::vector<std::string>& now = session().main.gmLog.lstGMinfo();
  std::string lines;
  for (std::size_t i = now.size(); i < before.size(); ++i) {
    lines += "Undone: " + before[i] + "\r\n";
  }
  for (std::size_t i = before.size(); i < now.size(); ++i) lines += "Redone: " + now[i] + "\r\n";
  if (lines.empty()) return;
  try {
    outside_.ports.files.Append(session().main.gmLog.Path(), lines);
  } catch (const RuntimeError& error) {
    TellNotice(std::string("The log is not written: ") + error.what());
  }
}

void Desk::TakeUp(const std::string& name) {
  Prompts& prompts = outside_.ports.prompts;
  try {
    Journal journal = ReadJournal(outside_.journals.Read(name));
    if (const std::optional<LostWay> lost = Audit(journal)) {
      prompts.Message("This fight was kept by another version of the program and can be followed " +
                      ("up to combat turn " + std::to_string(lost->combatTurn)) +
                      " only.\r\nIt is not taken up, and its journal is left as it is.");
      return;
    }
    writer_.GoOn(name, journal);
    Adopt(std::move(journal));
  } catch (const RuntimeError& error) {
    prompts.Message(std::string("This fight cannot be taken up.\r\n") + error.what());
  } catch (const std::runtime_error& error) {
    prompts.Message(std::string("This fight cannot be taken up.\r\n") + error.what());
  }
}

void Desk::Adopt(Journal journal) {
  head_ = std::move(journal.head);
  contents_ = std::move(journal.contents);
  timeline_ = std::move(journal.timeline);
  const Looks looks = Looks::Of(session());
  const std::size_t cursor = timeline_.Cursor();
  steps_.Clear();
  waiting_.clear();
  lines_ = {};
  live_.Set(head_);
  std::size_t index = 0;
  // What was undone has its steps, too.
  timeline_.ForEach(timeline_.Size(), contents_, [&](const Entry& entry) {
    steps_.Before(session(), entry.act);
    live_.Play(entry);
    if (steps_.Changed(session(), entry.act, live_.tape.Refused())) steps_.Add(entry.act, index);
    ++index;
    return true;
  });
  if (cursor != timeline_.Size()) PlayTo(cursor);
  steps_.MoveTo(cursor);
  looks.GiveTo(session());
  TellNotice(Sentence(journal.end));
  forms_.Begin();
}

void Desk::Decline(const std::string& name) {
  try {
    outside_.journals.Rename(name, DeclinedName(name));
  } catch (const RuntimeError&) {
    // On a disk that cannot be written it is offered again.
  }
}

void Desk::TellNotice(const std::string& notice) {
  if (!notice.empty()) session().main.lblJournal = notice;
}

}  // namespace ng
