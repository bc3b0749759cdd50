#include "golden/player.h"

#include <memory>
#include <optional>
#include <ostream>
#include <stdexcept>

#include "app/startup.h"
#include "base/seeded_uniform.h"
#include "base/text.h"
#include "fakes/fakes.h"
#include "golden/snapshot.h"
#include "journal/act_text.h"
#include "journal/stage.h"

namespace ng {
namespace {

/// Start-up's windows, of which a golden fight shows nothing.
class NoWindows : public StartupWindows {
 public:
  void ShowSplash() override {}
  void LoadMain() override {}
  void UnloadSplash() override {}
  void ShowMain() override {}
};

void WriteAct(std::ostream& transcript, const Act& act) {
  transcript << "> " << ActText(act) << '\n';
}

/// Writes what differs from the last snapshot.
class Witness {
 public:
  explicit Witness(std::ostream& transcript) : transcript_(transcript) {}

  void Begin(const Session& session) { shown_ = TakeSnapshot(session); }
  void Tell(const Session& session) {
    Snapshot now = TakeSnapshot(session);
    for (const std::string& difference : Differences(shown_, now)) {
      transcript_ << difference << '\n';
    }
    shown_ = std::move(now);
  }

 private:
  std::ostream& transcript_;
  Snapshot shown_;
};

/// Plays acts that were written by hand, with the files of a disk in memory.
class Player {
 public:
  explicit Player(std::ostream& transcript) : transcript_(transcript), witness_(transcript) {}

  /// Takes one line; an act is performed when the lines of its answers are through.
  void Take(std::string_view line) {
    const std::string_view text = Trimmed(line);
    if (text.empty() || text.starts_with('#') || TakeSetting(text)) return;
    if (const std::optional<Entry> entry = reader_.Take(text)) Perform(*entry);
  }

  void Finish() {
    if (const std::optional<Entry> entry = reader_.Finish()) Perform(*entry);
  }

 private:
  /// Lines that prepare the play before "start".
  bool TakeSetting(std::string_view text) {
    WordReader words(text);
    const std::string_view word = words.Word();
    if (word == "seed") {
      uniform_ = std::make_unique<SeededUniform>(static_cast<std::uint32_t>(words.Number()));
    } else if (word == "mount") {
      const std::string path = words.Text();
      files_.Mount(path, words.Text());
    } else if (word == "file") {
      const std::string path = words.Text();
      files_.Put(path, words.Text());
    } else {
      return false;
    }
    return true;
  }

  void Perform(const Entry& entry) {
    if (!entry.outcomes.empty()) throw std::runtime_error("what files gave belongs in journals");
    prompts_.answers.assign(entry.answers.begin(), entry.answers.end());
    WriteAct(transcript_, entry.act);
    if (entry.act.control == kStartAct) {
      Start();
    } else {
      if (!session_) throw std::runtime_error("the program is not started");
      session_->Do(entry.act);
      prompts_.Check();
    }
    for (const std::string& line : prompts_.TakeLog()) transcript_ << line << '\n';
    witness_.Tell(*session_);
    if (!prompts_.answers.empty()) throw std::runtime_error("an answer was left over");
  }

  /// What has changed in a modal form goes among what was shown and asked.
  void LookAt(const std::string& form) {
    Snapshot now = TakeSnapshot(*session_);
    for (std::string& difference : Differences(looked_, now)) {
      if (difference.starts_with(form)) prompts_.log.push_back(std::move(difference));
    }
    looked_ = std::move(now);
  }

  void Start() {
    if (!uniform_) throw std::runtime_error("no seed is given");
    session_ = std::make_unique<Session>(
        Environment{files_, *uniform_, prompts_, userSettings_, {{}, "C:\\tracker"}, {}});
    witness_.Begin(*session_);
    prompts_.perform = [this](const Act& act) {
      prompts_.log.push_back(">> " + ActText(act));
      session_->Do(act);
    };
    prompts_.look = [this](const std::string& form) { LookAt(form); };
    NoWindows windows;
    if (!Main(*session_, windows)) throw std::runtime_error("the program does not start");
  }

  std::ostream& transcript_;
  Witness witness_;
  Contents contents_;
  EntryReader reader_{contents_};
  FakeFiles files_;
  ScriptedPrompts prompts_;
  FakeUserSettings userSettings_;
  std::unique_ptr<SeededUniform> uniform_;
  std::unique_ptr<Session> session_;
  /// What a modal form was last seen with.
  Snapshot looked_;
};

/// Plays a journal that a running program has kept, as far as it was done.
void PlayJournal(std::string_view text, std::ostream& transcript) {
  Journal journal = ReadJournal(text);
  Stage stage({}, journal.contents);
  stage.Set(journal.head);
  Witness witness(transcript);
  witness.Begin(stage.session());
  journal.timeline.ForEach(journal.timeline.Cursor(), journal.contents, [&](const Entry& entry) {
    WriteAct(transcript, entry.act);
    if (!stage.Play(entry)) throw std::runtime_error("the journal cannot be followed here");
    for (const std::string& told : stage.tape.Told()) {
      transcript << "message " << Quoted(told) << '\n';
    }
    witness.Tell(stage.session());
    return true;
  });
}

}  // namespace

void Play(std::string_view script, std::ostream& transcript) {
  if (script.starts_with("#= ")) {
    PlayJournal(script, transcript);
    return;
  }
  Player player(transcript);
  LineReader lines(script);
  std::string_view line;
  int number = 0;
  try {
    while (lines.Next(line)) {
      ++number;
      player.Take(line);
    }
    player.Finish();
  } catch (const std::exception& error) {
    throw std::runtime_error("line " + std::to_string(number) + ": " + error.what());
  }
}

}  // namespace ng
