#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/startup.h"
#include "base/ports.h"
#include "journal/desk_forms.h"
#include "journal/journal_writer.h"
#include "journal/kept_fights.h"
#include "journal/stage.h"
#include "journal/steps.h"

namespace ng {

/// All of the outside that the desk needs.
struct Outside {
  RealPorts ports;
  Clock& clock;
  JournalStore& journals;
  /// What this run of the program begins its fight with.
  JournalHead head;
};

/// The session and the journal that is kept of it: every act comes here, is done and written down,
/// and can be taken back. A fight is the list of its acts, so that undo is playing it again up to
/// an earlier act, and a fight that was cut off is taken up by playing its journal.
class Desk {
 public:
  explicit Desk(const Outside& outside);

  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  /// Lives at one address for the whole run, though undo fills it anew.
  Session& session() { return live_.session(); }
  const Session& session() const { return live_.session(); }

  /// The start of the program, as the first act of a fight.
  /// False when an error ended it, which has been told.
  bool Start(StartupWindows& windows);
  /// Does an act and writes it down before the next can come. Acts of a modal form come in while
  /// the act that showed the form still runs. An act that no command is named after is a fault of
  /// the caller: std::invalid_argument.
  void Do(const Act& act);
  /// The fight ends properly: its journal is closed and stays among the kept ones.
  void Close() { writer_.Close(); }

  /// Takes the last step back, or does it again; nothing without a step. Files that the steps wrote
  /// stay as they are; a line of the log that is taken back is followed by one that says so.
  void Undo();
  void Redo();
  /// Undoes, or does again, so that this many entries of the timeline are done.
  void GoTo(std::size_t entries);
  const Steps& steps() const { return steps_; }

  /// The fight stays among the recent ones and is not offered again.
  void Decline(const std::string& name);
  /// To be called once the main window is there: offers the fight that was not closed.
  void OfferUnclosed() { forms_.OfferUnclosed(); }
  std::vector<KeptFight> KeptFights() const { return ng::KeptFights(outside_.journals); }
  std::optional<KeptFight> Unclosed() const { return UnclosedFight(outside_.journals); }
  /// Closes the fight on the desk and takes up a kept one exactly where it was left, with its
  /// steps. Where that cannot be done a sentence says why, and nothing else happens.
  void TakeUp(const std::string& name);

  const RealPorts& ports() const { return outside_.ports; }
  const Timeline& timeline() const { return timeline_; }
  const JournalHead& head() const { return head_; }
  Contents& contents() { return contents_; }
  const std::string& JournalName() const { return writer_.Name(); }

 private:
  /// An entry with the contents that it read first.
  struct NewEntry {
    Entry entry;
    std::vector<std::string> contents;
  };

  void Record(const Act& act, const std::function<void()>& run);
  void Keep(const NewEntry& added);
  /// Contents that only these read are not in the journal: the next who reads them notes them.
  void Forget(const std::vector<NewEntry>& looks);
  void PlayTo(std::size_t entries);
  void LogWhatMoved(const std::vector<std::string>& before);
  void Adopt(Journal journal);
  FightSummary Summary() const;
  void TellNotice(const std::string& notice);

  Outside outside_;
  JournalHead head_;
  Contents contents_;
  Stage live_;
  Timeline timeline_;
  EntryWriter lines_;
  Steps steps_;
  /// Looks and refusals since an undo. They take the place of what was undone only when a change
  /// does: to look around must not cost the redo.
  std::vector<NewEntry> waiting_;
  JournalWriter writer_;
  DeskForms forms_;
  /// An act runs.
  bool running_ = false;
};

}  // namespace ng
