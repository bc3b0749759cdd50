#include "golden/player.h"

#include <charconv>
#include <istream>
#include <memory>
#include <ostream>
#include <stdexcept>

#include "app/startup.h"
#include "base/seeded_uniform.h"
#include "base/text.h"
#include "fakes/fakes.h"
#include "golden/snapshot.h"

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

/// Takes the next word, or the next text in quotes, off the front of a line.
class WordReader {
 public:
  explicit WordReader(std::string_view line) : rest_(Trimmed(line)) {}

  bool AtEnd() const { return rest_.empty(); }
  bool AtText() const { return rest_.starts_with('"'); }

  std::string Word() {
    const std::string word(rest_.substr(0, rest_.find(' ')));
    rest_ = TrimmedLeft(rest_.substr(word.size()));
    return word;
  }

  int Number() {
    const std::string word = Word();
    int number = 0;
    const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
    if (word.empty() || result.ptr != word.data() + word.size()) {
      throw std::runtime_error("not a number: " + word);
    }
    return number;
  }

  std::string Text() {
    const std::size_t end = AtText() ? rest_.find('"', 1) : std::string_view::npos;
    if (end == std::string_view::npos) throw std::runtime_error("a text in quotes is wanted");
    std::string text;
    for (std::size_t i = 1; i < end; ++i) {
      if (rest_[i] != '%') {
        text += rest_[i];
        continue;
      }
      int code = 0;
      std::from_chars(rest_.data() + i + 1, rest_.data() + i + 3, code, 16);
      text += static_cast<char>(static_cast<unsigned char>(code));
      i += 2;
    }
    rest_ = TrimmedLeft(rest_.substr(end + 1));
    return text;
  }

 private:
  std::string_view rest_;
};

Act ReadAct(std::string_view line) {
  WordReader words(line);
  Act act{words.Word(), 0, {}};
  if (!words.AtEnd() && !words.AtText()) act.index = words.Number();
  if (!words.AtEnd()) act.text = words.Text();
  return act;
}

std::string ActText(const Act& act) {
  std::string text = act.control;
  if (act.index != 0) text += " " + std::to_string(act.index);
  if (!act.text.empty()) text += " " + Quoted(act.text);
  return text;
}

ScriptedPrompts::Answer ReadAnswer(std::string_view line) {
  using Kind = ScriptedPrompts::Answer::Kind;
  WordReader words(line);
  const std::string kind = words.Word();
  if (kind == "cancel") return {Kind::Cancel, {}, {}};
  if (kind == "file") return {Kind::File, words.Text(), {}};
  if (kind == "input") return {Kind::Input, words.Text(), {}};
  if (kind == "save") return {Kind::Save, {}, {}};
  if (kind == "discard") return {Kind::Discard, {}, {}};
  if (kind == "modal") return {Kind::Modal, {}, {}};
  throw std::runtime_error("no kind of answer: " + kind);
}

class Player {
 public:
  explicit Player(std::ostream& transcript) : transcript_(transcript) {}

  /// Takes one line; an act is performed when the lines of its answers are through.
  void Take(const std::string& line) {
    const std::string_view text = Trimmed(line);
    if (text.empty() || text.starts_with('#')) return;
    if (text.starts_with("<<")) {
      if (prompts_.answers.empty()) throw std::runtime_error("no modal form is answered here");
      prompts_.answers.back().acts.push_back(ReadAct(text.substr(2)));
    } else if (text.starts_with('<')) {
      prompts_.answers.push_back(ReadAnswer(text.substr(1)));
    } else if (!TakeSetting(text)) {
      PerformPending();
      pending_ = std::make_unique<Act>(ReadAct(text));
    }
  }

  void PerformPending() {
    if (!pending_) return;
    const std::unique_ptr<Act> act = std::move(pending_);
    transcript_ << "> " << ActText(*act) << '\n';
    Perform(*act);
    for (const std::string& entry : prompts_.TakeLog()) transcript_ << entry << '\n';
    Snapshot now = TakeSnapshot(*session_);
    for (const std::string& difference : Differences(shown_, now)) {
      transcript_ << difference << '\n';
    }
    shown_ = std::move(now);
    if (!prompts_.answers.empty()) throw std::runtime_error("an answer was left over");
  }

 private:
  /// Lines that prepare the play before "start".
  bool TakeSetting(std::string_view text) {
    WordReader words(text);
    const std::string word = words.Word();
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

  void Perform(const Act& act) {
    if (act.control == "start") {
      Start();
      return;
    }
    if (!session_) throw std::runtime_error("the program is not started");
    session_->Do(act);
    prompts_.Check();
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
    shown_ = TakeSnapshot(*session_);
    prompts_.perform = [this](const Act& act) {
      prompts_.log.push_back(">> " + ActText(act));
      session_->Do(act);
    };
    prompts_.look = [this](const std::string& form) { LookAt(form); };
    NoWindows windows;
    if (!Main(*session_, windows)) throw std::runtime_error("the program does not start");
  }

  std::ostream& transcript_;
  FakeFiles files_;
  ScriptedPrompts prompts_;
  FakeUserSettings userSettings_;
  std::unique_ptr<SeededUniform> uniform_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<Act> pending_;
  Snapshot shown_;
  /// What a modal form was last seen with.
  Snapshot looked_;
};

}  // namespace

void Play(std::istream& script, std::ostream& transcript) {
  Player player(transcript);
  std::string line;
  int number = 0;
  try {
    while (std::getline(script, line)) {
      ++number;
      if (line.ends_with('\r')) line.pop_back();
      player.Take(line);
    }
    player.PerformPending();
  } catch (const std::exception& error) {
    throw std::runtime_error("line " + std::to_string(number) + ": " + error.what());
  }
}

}  // namespace ng
