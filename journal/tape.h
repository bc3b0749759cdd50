#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/ports.h"
#include "base/runtime_error.h"
#include "journal/entry.h"
#include "journal/entry_text.h"

namespace ng {

/// The outside that a tape records; what is replayed needs none.
struct RealPorts {
  Files& files;
  Prompts& prompts;
  UserSettings& userSettings;
};

/// The ports of a session whose acts are recorded or played again. While an act is recorded every
/// call goes on to the real ports, and what comes back is noted. While it is replayed what was
/// noted is given back and nothing outside is touched: no file is read or written, no box is shown,
/// nothing beeps. Between acts calls go on to the real ports, if there are any, and are not noted.
class Tape : public Files, public Prompts, public UserSettings {
 public:
  /// Without real ports everything between acts is empty.
  explicit Tape(std::optional<RealPorts> real, Contents& contents)
      : real_(real), contents_(contents) {}

  Tape(const Tape&) = delete;
  Tape& operator=(const Tape&) = delete;

  /// What performs the acts of a modal form that is replayed.
  std::function<void(const Act&)> perform;

  /// From now on what comes in is noted in `entry`, which must live until Stop.
  void Record(Entry& entry);
  /// From now on what `entry` holds is given back.
  void Replay(const Entry& entry);
  void Stop();

  /// An act of the modal form that is open while an act is recorded. An input box is no form: it
  /// may say that it left a character out, which changes nothing of the fight and is not noted.
  void NoteModalAct(const Act& act);

  /// Since Record or Replay: something was told or a question was cancelled.
  bool Refused() const { return refused_; }
  /// Since Record or Replay: the texts of the messages that were shown.
  const std::vector<std::string>& Told() const { return told_; }
  /// Since Replay: something was asked for that was not noted, or something noted was not asked
  /// for. An act that goes another way than when it was recorded shows so.
  bool Mismatched() const { return mismatched_; }
  /// Contents that were read for the first time since Record, by their digests.
  const std::vector<std::string>& NewContents() const { return newContents_; }

  // Files.
  std::string ReadWhole(const std::string& path) override;
  void Replace(const std::string& path, std::string_view bytes) override;
  void Append(const std::string& path, std::string_view bytes) override;
  FileList List(const std::string& directory, std::string_view ending) override;

  // Prompts.
  void Message(std::string_view text) override;
  std::string Input(std::string_view prompt) override;
  void Beep() override;
  std::optional<std::string> OpenFile(const FileDialog& dialog) override;
  std::optional<std::string> SaveFile(const FileDialog& dialog) override;
  SaveChoice AskToSave(std::string_view question) override;
  /// Asked by the desk alone, which has the real ports.
  bool AskToTakeUp(std::string_view) override { return false; }
  void ShowModal(ModalForm form) override;
  void ShowProgress(std::string_view what, int done, int total) override;

  // UserSettings.
  int Get(const std::string& section, const std::string& key, int defaultValue) override;
  void Save(const std::string& section, const std::string& key, int value) override;

 private:
  /// Whether a call goes on to the real ports.
  bool Live() const { return replayed_ == nullptr && real_.has_value(); }
  void Note(Outcome outcome);
  void Note(Answer answer);
  const Outcome& Take(Outcome::Kind kind);
  const Answer* TakeAnswer();
  /// Does it, and notes its outcome or the runtime error that it ends with.
  template <typename Work>
  auto Noted(Work work);
  void Written(const std::function<void()>& work);
  std::optional<std::string> ChosenFile(const std::function<std::optional<std::string>()>& ask);

  std::optional<RealPorts> real_;
  Contents& contents_;
  Entry* recorded_ = nullptr;
  const Entry* replayed_ = nullptr;
  std::size_t nextAnswer_ = 0;
  std::size_t nextOutcome_ = 0;
  bool refused_ = false;
  std::vector<std::string> told_;
  bool mismatched_ = false;
  std::vector<std::string> newContents_;
};

}  // namespace ng
