#include "journal/entry_text.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/text.h"
#include "journal/act_text.h"

namespace ng {
namespace {

/// A text of this length or more is written as what changed in it.
constexpr std::size_t kLongText = 24;

struct AnswerWord {
  const char* word;
  Answer::Kind kind;
  bool hasText;
};
constexpr AnswerWord kAnswerWords[] = {
    {"input", Answer::Kind::Input, true},      {"file", Answer::Kind::File, true},
    {"cancel", Answer::Kind::Cancel, false},   {"save", Answer::Kind::Save, false},
    {"discard", Answer::Kind::Discard, false}, {"modal", Answer::Kind::Modal, false}};

struct OutcomeWord {
  const char* word;
  Outcome::Kind kind;
};
constexpr OutcomeWord kOutcomeWords[] = {{"read", Outcome::Kind::Content},
                                         {"list", Outcome::Kind::Names},
                                         {"wrote", Outcome::Kind::Done},
                                         {"error", Outcome::Kind::Error},
                                         {"setting", Outcome::Kind::Setting}};

void AppendText(std::string& lines, std::string_view text) {
  lines += ' ';
  AppendQuoted(lines, text);
}

void AppendAnswer(std::string& lines, const Answer& answer) {
  const auto* const row = std::ranges::find(kAnswerWords, answer.kind, &AnswerWord::kind);
  lines.append("< ").append(row->word);
  if (row->hasText) AppendText(lines, answer.text);
  lines += '\n';
  for (const Act& act : answer.acts) lines.append("<< ").append(ActText(act)) += '\n';
}

void AppendOutcome(std::string& lines, const Outcome& outcome) {
  const auto* const row = std::ranges::find(kOutcomeWords, outcome.kind, &OutcomeWord::kind);
  lines.append("< ").append(row->word);
  switch (outcome.kind) {
    case Outcome::Kind::Content:
      lines.append(" ").append(outcome.text);
      break;
    case Outcome::Kind::Names:
      lines.append(" ").append(std::to_string(outcome.number));
      for (const std::string& name : outcome.names) AppendText(lines, name);
      break;
    case Outcome::Kind::Error:
      lines.append(" ").append(std::to_string(outcome.number));
      if (!outcome.text.empty()) AppendText(lines, outcome.text);
      break;
    case Outcome::Kind::Setting:
      lines.append(" ").append(std::to_string(outcome.number));
      break;
    case Outcome::Kind::Done:
      break;
  }
  lines += '\n';
}

Outcome ReadOutcome(Outcome::Kind kind, WordReader& words) {
  Outcome outcome{kind, {}, {}, 0};
  switch (kind) {
    case Outcome::Kind::Content:
      outcome.text = words.Word();
      break;
    case Outcome::Kind::Names:
      outcome.number = words.Number();
      while (!words.AtEnd()) outcome.names.push_back(words.Text());
      break;
    case Outcome::Kind::Error:
      outcome.number = words.Number();
      if (!words.AtEnd()) outcome.text = words.Text();
      break;
    case Outcome::Kind::Setting:
      outcome.number = words.Number();
      break;
    case Outcome::Kind::Done:
      break;
  }
  return outcome;
}

bool SameControl(const Act& a, const Act& b) {
  return a.control == b.control && a.index == b.index;
}

/// How much the two texts share at the front, and of the rest at the back.
std::pair<std::size_t, std::size_t> Shared(std::string_view a, std::string_view b) {
  const std::size_t most = std::min(a.size(), b.size());
  std::size_t front = 0;
  while (front < most && a[front] == b[front]) ++front;
  std::size_t back = 0;
  while (back < most - front && a[a.size() - 1 - back] == b[b.size() - 1 - back]) ++back;
  return {front, back};
}

/// "txtNotes ~120 0 "x"": of the text before, the first 120 characters and the last none stay.
std::string ShortenedActText(const Act& act, const Act& last) {
  const auto [front, back] = Shared(last.text, act.text);
  std::string line = act.control;
  if (act.index != 0) line.append(" ").append(std::to_string(act.index));
  line.append(" ~").append(std::to_string(front)).append(" ").append(std::to_string(back));
  AppendText(line, std::string_view(act.text).substr(front, act.text.size() - front - back));
  return line;
}

}  // namespace

std::string EntryWriter::Lines(const Entry& entry) {
  std::string lines;
  if (entry.when != when_) lines.append("@ ").append(Quoted(entry.when)) += '\n';
  const bool shorten = SameControl(entry.act, last_) && entry.act.text.size() >= kLongText;
  lines.append(shorten ? ShortenedActText(entry.act, last_) : ActText(entry.act)) += '\n';
  for (const Answer& answer : entry.answers) AppendAnswer(lines, answer);
  for (const Outcome& outcome : entry.outcomes) AppendOutcome(lines, outcome);
  if (!entry.digest.empty()) lines.append("= ").append(entry.digest) += '\n';
  Follow(entry);
  return lines;
}

void EntryWriter::Follow(const Entry& entry) {
  last_ = entry.act;
  when_ = entry.when;
}

std::optional<Entry> EntryReader::Take(std::string_view line) {
  WordReader words(line);
  if (line.starts_with('<')) {
    if (!open_) throw std::runtime_error("an answer before the first act");
    TakeAnswer(line.substr(1));
    return {};
  }
  if (line.starts_with('@')) {
    words.Word();
    when_ = words.Text();
    return {};
  }
  if (line.starts_with('=')) {
    if (!open_) throw std::runtime_error("a digest before the first act");
    words.Word();
    open_->digest = words.Word();
    return {};
  }
  if (line.starts_with("content ")) {
    words.Word();
    const std::string digest(words.Word());
    contents_[digest] = words.Text();
    return {};
  }
  Entry next{TakeAct(line), when_, {}, {}, {}};
  last_ = next.act;
  return std::exchange(open_, std::move(next));
}

std::optional<Entry> EntryReader::Finish() { return std::exchange(open_, std::nullopt); }

void EntryReader::TakeAnswer(std::string_view line) {
  if (line.starts_with('<')) {
    if (open_->answers.empty() || open_->answers.back().kind != Answer::Kind::Modal) {
      throw std::runtime_error("no modal form is answered here");
    }
    open_->answers.back().acts.push_back(ReadAct(line.substr(1)));
    return;
  }
  WordReader words(line);
  const std::string_view word = words.Word();
  if (const auto* row = std::ranges::find(kAnswerWords, word, &AnswerWord::word);
      row != std::end(kAnswerWords)) {
    open_->answers.push_back({row->kind, row->hasText ? words.Text() : std::string(), {}});
    return;
  }
  const auto* row = std::ranges::find(kOutcomeWords, word, &OutcomeWord::word);
  if (row == std::end(kOutcomeWords)) {
    throw std::runtime_error("no kind of answer: " + std::string(word));
  }
  open_->outcomes.push_back(ReadOutcome(row->kind, words));
}

Act EntryReader::TakeAct(std::string_view line) const {
  if (!Contains(line, "~")) return ReadAct(line);
  WordReader words(line);
  Act act{std::string(words.Word()), 0, {}};
  if (!words.AtEnd() && !words.AtText() && !words.At('~')) act.index = words.Number();
  if (!words.At('~')) return ReadAct(line);
  const std::string_view mark = words.Word();
  const int front = WordReader(mark.substr(1)).Number();
  const int back = words.Number();
  const std::string middle = words.Text();
  const auto length = static_cast<int>(last_.text.size());
  if (!SameControl(act, last_) || front < 0 || back < 0 || front + back > length) {
    throw std::runtime_error("the text before does not fit");
  }
  act.text = last_.text.substr(0, static_cast<std::size_t>(front)) + middle +
             last_.text.substr(static_cast<std::size_t>(length - back));
  return act;
}

}  // namespace ng
