#include "fakes/fakes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "base/code_page.h"
#include "base/runtime_error.h"
#include "base/text.h"

namespace ng {

std::string FakeFiles::Key(const std::string& path) {
  std::string key;
  for (const char c : path) key += c == '/' ? '\\' : AsciiLower(c);
  return key;
}

void FakeFiles::Mount(const std::string& path, const std::string& nativeDirectory) {
  for (const auto& entry : std::filesystem::directory_iterator(nativeDirectory)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream stream(entry.path(), std::ios::binary);
    const std::string name = FromUtf8(entry.path().filename().string());
    Put(path + "\\" + name, {std::istreambuf_iterator<char>(stream), {}});
  }
}

std::string FakeFiles::ReadWhole(const std::string& path) {
  const auto found = files_.find(Key(path));
  if (found == files_.end()) throw RuntimeError(ErrorNumber::FileNotFound);
  ++reads[Key(path)];
  return found->second;
}

void FakeFiles::CountWrite() {
  if (failingWrite > 0 && --failingWrite == 0) throw RuntimeError(ErrorNumber::DiskFull);
}

void FakeFiles::Replace(const std::string& path, std::string_view bytes) {
  CountWrite();
  Put(path, std::string(bytes));
}

void FakeFiles::Append(const std::string& path, std::string_view bytes) {
  CountWrite();
  files_[Key(path)].append(bytes);
}

FileList FakeFiles::List(const std::string& directory, std::string_view ending) {
  const std::string prefix = Key(directory) + "\\";
  FileList list{{}, unlisted};
  for (const auto& [key, bytes] : files_) {
    if (!key.starts_with(prefix) || !key.ends_with(ending)) continue;
    const std::string name = key.substr(prefix.size());
    if (!Contains(name, "\\")) list.names.push_back(name);
  }
  return list;
}

void Script::Check() const {
  if (!unforeseen_.empty()) throw std::logic_error(unforeseen_);
}

void Script::Fail(const std::string& unforeseen) {
  unforeseen_ = unforeseen;
  throw std::logic_error(unforeseen);
}

float ScriptedUniform::ValueFor(int number, int n) {
  for (int step = 0; step < 1 << 24; ++step) {
    const float value = static_cast<float>(step) * 0x1p-24F;
    const auto scaled = static_cast<long>(std::nearbyint(static_cast<double>(value) * 2e9));
    if (scaled % n + 1 == number) return value;
  }
  throw std::logic_error("no uniform value gives " + std::to_string(number));
}

void ScriptedUniform::PushFaces(std::initializer_list<int> faces) {
  for (const int face : faces) Push(face, 6);
}

float ScriptedUniform::Next() {
  if (values_.empty()) {
    if (repeated_ < 0) Fail("the scripted random values have run out");
    return repeated_;
  }
  const float value = values_.front();
  values_.pop_front();
  return value;
}

std::vector<std::string> ScriptedPrompts::TakeLog() { return std::exchange(log, {}); }

ScriptedPrompts::Answer ScriptedPrompts::TakeAnswer(const std::string& question) {
  log.push_back(question);
  if (answers.empty()) Fail("unexpected question: " + question);
  Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

void ScriptedPrompts::Message(std::string_view text) { log.push_back("message " + Quoted(text)); }

std::string ScriptedPrompts::Input(std::string_view prompt) {
  const Answer answer = TakeAnswer("input " + Quoted(prompt));
  for (const Act& act : answer.acts) perform(act);
  return answer.text;
}

std::optional<std::string> ScriptedPrompts::ChooseFile(const char* kind, const FileDialog& dialog) {
  const Answer answer =
      TakeAnswer(std::string(kind) + " " + Quoted(dialog.title) + " " + Quoted(dialog.filter));
  if (answer.kind == Answer::Kind::Cancel) return std::nullopt;
  return answer.text;
}

std::optional<std::string> ScriptedPrompts::OpenFile(const FileDialog& dialog) {
  return ChooseFile("open", dialog);
}

std::optional<std::string> ScriptedPrompts::SaveFile(const FileDialog& dialog) {
  return ChooseFile("save", dialog);
}

SaveChoice ScriptedPrompts::AskToSave(std::string_view question) {
  const Answer answer = TakeAnswer("save? " + Quoted(question));
  if (answer.kind == Answer::Kind::Save) return SaveChoice::Save;
  return answer.kind == Answer::Kind::Discard ? SaveChoice::Discard : SaveChoice::Cancel;
}

bool ScriptedPrompts::AskToTakeUp(std::string_view question) {
  return TakeAnswer("take up? " + Quoted(question)).kind == Answer::Kind::Save;
}

void ScriptedPrompts::ShowModal(ModalForm form) {
  constexpr std::array<const char*, 5> kNames = {"frmOptions", "frmLoader", "frmSelSkillLevel",
                                                 "frmAbout", "frmRecent"};
  const std::string name = kNames.at(static_cast<std::size_t>(form));
  const Answer answer = TakeAnswer("modal " + name);
  if (look) look(name);
  for (const Act& act : answer.acts) {
    perform(act);
    if (look) look(name);
  }
}

int FakeUserSettings::Get(const std::string& section, const std::string& key, int defaultValue) {
  const auto found = values.find(section + "/" + key);
  return found == values.end() ? defaultValue : found->second;
}

void FakeUserSettings::Save(const std::string& section, const std::string& key, int value) {
  values[section + "/" + key] = value;
}

}  // namespace ng
