#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "app/act.h"
#include "base/ports.h"
#include "journal/act_text.h"
#include "journal/entry.h"

namespace ng {

/// A disk in memory. Names ignore ASCII case, "\" and "/" both separate.
class FakeFiles : public Files {
 public:
  /// Puts a file there without it counting as a write.
  void Put(const std::string& path, std::string bytes) { files_[Key(path)] = std::move(bytes); }
  /// Puts the files of a directory of this machine there.
  void Mount(const std::string& path, const std::string& nativeDirectory);
  bool Has(const std::string& path) const { return files_.count(Key(path)) > 0; }

  std::string ReadWhole(const std::string& path) override;
  void Replace(const std::string& path, std::string_view bytes) override;
  void Append(const std::string& path, std::string_view bytes) override;
  FileList List(const std::string& directory, std::string_view ending) override;

  /// The n-th write from now on finds the disk full; 0 for none.
  int failingWrite = 0;
  /// How many files every directory has that cannot be named.
  int unlisted = 0;
  /// How often each file was read.
  std::map<std::string, int> reads;

 private:
  static std::string Key(const std::string& path);
  void CountWrite();

  std::map<std::string, std::string> files_;
  std::map<std::string, std::string> names_;
};

/// What a test says in advance. Whatever it did not foresee ends the test: it is thrown at once,
/// and kept, since the door lets no exception out.
class Script {
 public:
  /// Throws what was not foreseen so far.
  void Check() const;

 protected:
  [[noreturn]] void Fail(const std::string& unforeseen);

 private:
  std::string unforeseen_;
};

/// Gives the values told, and fails the test when they run out.
class ScriptedUniform : public Uniform, public Script {
 public:
  /// The values for which RandomInt(6) shows these faces.
  void PushFaces(std::initializer_list<int> faces);
  /// The value for which RandomInt(n) gives `number`.
  void Push(int number, int n) { values_.push_back(ValueFor(number, n)); }
  /// From now on shows this face whenever the values have run out.
  void RepeatFace(int face) { repeated_ = ValueFor(face, 6); }
  std::size_t Left() const { return values_.size(); }

  float Next() override;

 private:
  static float ValueFor(int number, int n);

  std::deque<float> values_;
  float repeated_ = -1;
};

/// Answers the program's questions from a queue and records all that was shown and asked. An
/// unexpected question ends the test.
class ScriptedPrompts : public Prompts, public Script {
 public:
  using Answer = ng::Answer;

  std::deque<Answer> answers;
  /// `message "..."`, `beep`, `input "..."`, one entry each.
  std::vector<std::string> log;
  /// The door that the acts of a modal form go through.
  std::function<void(const Act&)> perform;
  /// Called, if there is one, with the name of a modal form that is shown, and after each act in
  /// it.
  std::function<void(const std::string&)> look;

  /// The record since the last call.
  std::vector<std::string> TakeLog();

  void Message(std::string_view text) override;
  std::string Input(std::string_view prompt) override;
  void Beep() override { log.emplace_back("beep"); }
  std::optional<std::string> OpenFile(const FileDialog& dialog) override;
  std::optional<std::string> SaveFile(const FileDialog& dialog) override;
  SaveChoice AskToSave(std::string_view question) override;
  bool AskToTakeUp(std::string_view question) override;
  void ShowModal(ModalForm form) override;
  void ShowProgress(std::string_view, int done, int total) override { underWay = done < total; }
  /// Work was begun and not yet ended.
  bool underWay = false;

 private:
  Answer TakeAnswer(const std::string& question);
  std::optional<std::string> ChooseFile(const char* kind, const FileDialog& dialog);
};

class FakeUserSettings : public UserSettings {
 public:
  int Get(const std::string& section, const std::string& key, int defaultValue) override;
  void Save(const std::string& section, const std::string& key, int value) override;

  std::map<std::string, int> values;
};

}  // namespace ng
