#include "journal/tape.h"

#include <utility>

#include "journal/digest.h"

namespace ng {
namespace {

/// What a runtime error says below its own text.
std::string DetailOf(const RuntimeError& error) {
  const std::string text = error.what();
  const std::size_t end = text.find("\r\n");
  return end == std::string::npos ? std::string() : text.substr(end + 2);
}

/// Whether a modal form was left without a choice.
bool IsCancelled(const std::vector<Act>& acts) {
  return acts.empty() || acts.back().control.ends_with(".cmdCancel");
}

}  // namespace

void Tape::Record(Entry& entry) {
  Stop();
  recorded_ = &entry;
  refused_ = false;
  told_.clear();
  newContents_.clear();
}

void Tape::Replay(const Entry& entry) {
  Stop();
  replayed_ = &entry;
  refused_ = false;
  told_.clear();
  nextAnswer_ = 0;
  nextOutcome_ = 0;
  mismatched_ = false;
}

void Tape::Stop() {
  if (replayed_ != nullptr) {
    mismatched_ = mismatched_ || nextOutcome_ != replayed_->outcomes.size();
  }
  recorded_ = nullptr;
  replayed_ = nullptr;
}

void Tape::NoteModalAct(const Act& act) {
  if (recorded_ == nullptr) return;
  // The form may have asked something itself since it was opened.
  for (auto answer = recorded_->answers.rbegin(); answer != recorded_->answers.rend(); ++answer) {
    if (answer->kind != Answer::Kind::Modal) continue;
    answer->acts.push_back(act);
    return;
  }
}

void Tape::Note(Outcome outcome) {
  if (recorded_ != nullptr) recorded_->outcomes.push_back(std::move(outcome));
}

void Tape::Note(Answer answer) {
  if (recorded_ != nullptr) recorded_->answers.push_back(std::move(answer));
}

const Outcome& Tape::Take(Outcome::Kind kind) {
  static const Outcome kNothing{Outcome::Kind::Done, {}, {}, 0};
  if (replayed_ == nullptr) return kNothing;
  if (nextOutcome_ == replayed_->outcomes.size()) {
    mismatched_ = true;
    return kNothing;
  }
  const Outcome& outcome = replayed_->outcomes[nextOutcome_++];
  if (outcome.kind == Outcome::Kind::Error) {
    throw RuntimeError(static_cast<ErrorNumber>(outcome.number), outcome.text);
  }
  if (outcome.kind != kind) mismatched_ = true;
  return outcome;
}

const Answer* Tape::TakeAnswer() {
  if (replayed_ == nullptr || nextAnswer_ == replayed_->answers.size()) return nullptr;
  return &replayed_->answers[nextAnswer_++];
}

template <typename Work>
auto Tape::Noted(Work work) {
  try {
    return work();
  } catch (const RuntimeError& error) {
    Note(Outcome{Outcome::Kind::Error, DetailOf(error), {}, static_cast<int>(error.Number())});
    throw;
  }
}

std::string Tape::ReadWhole(const std::string& path) {
  if (!Live()) {
    const auto content = contents_.find(Take(Outcome::Kind::Content).text);
    if (content != contents_.end()) return content->second;
    mismatched_ = true;
    return {};
  }
  return Noted([&] {
    std::string content = real_->files.ReadWhole(path);
    if (recorded_ == nullptr) return content;
    std::string digest = ContentDigest(content);
    if (contents_.emplace(digest, content).second) newContents_.push_back(digest);
    Note(Outcome{Outcome::Kind::Content, std::move(digest), {}, 0});
    return content;
  });
}

void Tape::Written(const std::function<void()>& work) {
  if (!Live()) {
    Take(Outcome::Kind::Done);
    return;
  }
  Noted([&] {
    work();
    Note(Outcome{Outcome::Kind::Done, {}, {}, 0});
  });
}

void Tape::Replace(const std::string& path, std::string_view bytes) {
  Written([&] { real_->files.Replace(path, bytes); });
}

void Tape::Append(const std::string& path, std::string_view bytes) {
  Written([&] { real_->files.Append(path, bytes); });
}

FileList Tape::List(const std::string& directory, std::string_view ending) {
  if (!Live()) {
    const Outcome& outcome = Take(Outcome::Kind::Names);
    return {outcome.names, outcome.number};
  }
  return Noted([&] {
    FileList list = real_->files.List(directory, ending);
    Note(Outcome{Outcome::Kind::Names, {}, list.names, list.unlisted});
    return list;
  });
}

void Tape::Message(std::string_view text) {
  refused_ = true;
  told_.emplace_back(text);
  if (Live()) real_->prompts.Message(text);
}

std::string Tape::Input(std::string_view prompt) {
  if (!Live()) {
    const Answer* answer = TakeAnswer();
    std::string text = answer == nullptr ? std::string() : answer->text;
    refused_ = refused_ || text.empty();
    return text;
  }
  std::string text = real_->prompts.Input(prompt);
  refused_ = refused_ || text.empty();
  Note(Answer{Answer::Kind::Input, text, {}});
  return text;
}

void Tape::Beep() {
  if (Live()) real_->prompts.Beep();
}

std::optional<std::string> Tape::ChosenFile(
    const std::function<std::optional<std::string>()>& ask) {
  if (!Live()) {
    const Answer* answer = TakeAnswer();
    if (answer != nullptr && answer->kind == Answer::Kind::File) return answer->text;
    refused_ = true;
    return std::nullopt;
  }
  std::optional<std::string> path = ask();
  refused_ = refused_ || !path;
  Note(Answer{path ? Answer::Kind::File : Answer::Kind::Cancel, path.value_or(""), {}});
  return path;
}

std::optional<std::string> Tape::OpenFile(const FileDialog& dialog) {
  return ChosenFile([&] { return real_->prompts.OpenFile(dialog); });
}

std::optional<std::string> Tape::SaveFile(const FileDialog& dialog) {
  return ChosenFile([&] { return real_->prompts.SaveFile(dialog); });
}

SaveChoice Tape::AskToSave(std::string_view question) {
  if (!Live()) {
    // What was saved lies outside the fight, so it may be asked where it was not, and the other way
    // round; nothing of the fight depends on it.
    const Answer* answer = TakeAnswer();
    if (answer != nullptr && answer->kind == Answer::Kind::Save) return SaveChoice::Save;
    return answer != nullptr && answer->kind == Answer::Kind::Discard ? SaveChoice::Discard
                                                                      : SaveChoice::Cancel;
  }
  const SaveChoice choice = real_->prompts.AskToSave(question);
  Note(Answer{choice == SaveChoice::Save      ? Answer::Kind::Save
              : choice == SaveChoice::Discard ? Answer::Kind::Discard
                                              : Answer::Kind::Cancel,
              {},
              {}});
  return choice;
}

void Tape::ShowModal(ModalForm form) {
  if (!Live()) {
    const Answer* answer = TakeAnswer();
    if (answer == nullptr) return;
    for (const Act& act : answer->acts) perform(act);
    refused_ = refused_ || IsCancelled(answer->acts);
    return;
  }
  const std::size_t place = recorded_ == nullptr ? 0 : recorded_->answers.size();
  Note(Answer{Answer::Kind::Modal, {}, {}});
  real_->prompts.ShowModal(form);
  if (recorded_ != nullptr) refused_ = refused_ || IsCancelled(recorded_->answers[place].acts);
}

void Tape::ShowProgress(std::string_view what, int done, int total) {
  if (Live()) real_->prompts.ShowProgress(what, done, total);
}

int Tape::Get(const std::string& section, const std::string& key, int defaultValue) {
  if (!Live()) {
    return replayed_ == nullptr ? defaultValue : Take(Outcome::Kind::Setting).number;
  }
  const int value = real_->userSettings.Get(section, key, defaultValue);
  Note(Outcome{Outcome::Kind::Setting, {}, {}, value});
  return value;
}

void Tape::Save(const std::string& section, const std::string& key, int value) {
  if (Live()) real_->userSettings.Save(section, key, value);
}

}  // namespace ng
