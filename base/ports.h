#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ng {

// All of the outside that the logic knows. The session is given one of each at start; tests give
// it recording fakes.

/// The files of a directory as a file list shows them.
struct FileList {
  std::vector<std::string> names;
  /// How many more files there are, whose names as the program writes them fit other files as well.
  int unlisted = 0;
};

/// Files by the program's own path texts, in which "\" separates and, on POSIX, "/" as well. An
/// exact name that does not exist is looked for ignoring case, since the data directories come from
/// a system that ignores it.
class Files {
 public:
  virtual ~Files() = default;

  /// The whole content. Throws the file errors of runtime_error.h ("File not found", "Path not
  /// found").
  virtual std::string ReadWhole(const std::string& path) = 0;
  /// Replaces the file by `bytes` in one step: a failure on the way leaves the old file whole.
  virtual void Replace(const std::string& path, std::string_view bytes) = 0;
  virtual void Append(const std::string& path, std::string_view bytes) = 0;

  /// The names of the files of `directory` that end in `ending` (ASCII case ignored), sorted; none
  /// when the directory cannot be read. Every name opens its file.
  virtual FileList List(const std::string& directory, std::string_view ending) = 0;
};

/// The uniform random source.
class Uniform {
 public:
  virtual ~Uniform() = default;
  /// A single-precision value R with 0 <= R < 1.
  virtual float Next() = 0;
};

/// The modal windows that one form can ask for; the door hands them on to their own forms.
enum class ModalForm { Options, Loader, SkillLevel, About, Recent };

/// What the common file dialog is opened with.
struct FileDialog {
  std::string title;
  /// A description and a pattern, joined by "|" ("State File (*.ngt)|*.ngt").
  std::string filter;
  std::string directory;
  std::string defaultExtension;
};

/// What to do with a fight that was changed since it was last saved.
enum class SaveChoice { Save, Discard, Cancel };

/// What the program asks and tells the game master.
class Prompts {
 public:
  virtual ~Prompts() = default;

  /// A box with an OK button and the application's title; returns when it is closed.
  virtual void Message(std::string_view text) = 0;
  /// An input box; Cancel gives the empty text.
  virtual std::string Input(std::string_view prompt) = 0;
  virtual void Beep() = 0;
  /// The chosen path, or nothing on Cancel.
  virtual std::optional<std::string> OpenFile(const FileDialog& dialog) = 0;
  virtual std::optional<std::string> SaveFile(const FileDialog& dialog) = 0;
  virtual SaveChoice AskToSave(std::string_view question) = 0;
  /// Whether to take up a fight that was not closed.
  virtual bool AskToTakeUp(std::string_view question) = 0;
  /// Shows the form and returns when it is closed.
  virtual void ShowModal(ModalForm form) = 0;
  /// `done` of `total` steps of a piece of work are done, all of them at its end. Nothing need
  /// be shown of work that is over in a moment.
  virtual void ShowProgress(std::string_view what, int done, int total) = 0;
};

/// The wall clock.
class Clock {
 public:
  virtual ~Clock() = default;
  /// The local date and time to the second, "2026-11-21 21:43:05".
  virtual std::string Now() = 0;
};

/// A file that only grows. While it is open no other program can open it as one.
class DurableFile {
 public:
  virtual ~DurableFile() = default;
  /// When this returns the bytes outlive the program; within a second they outlive the machine.
  /// Throws the file errors.
  virtual void Append(std::string_view bytes) = 0;
  /// Puts what was appended on the device as soon as may be, without waiting for it.
  virtual void Flush() = 0;
};

/// The journals of fights, by their names.
class JournalStore {
 public:
  virtual ~JournalStore() = default;
  /// In rising order; none when there is no such directory.
  virtual std::vector<std::string> List() = 0;
  /// The whole content. Throws the file errors.
  virtual std::string Read(const std::string& name) = 0;
  /// Whether a program that runs has it open.
  virtual bool IsHeld(const std::string& name) = 0;
  /// Opens a journal, cut off behind its first `bytes` bytes, or makes a new one. Throws the file
  /// errors, "Permission denied" where a running program has it open.
  virtual std::unique_ptr<DurableFile> Open(const std::string& name, std::size_t bytes) = 0;
  /// Gives it another name, also while it is open. Throws the file errors.
  virtual void Rename(const std::string& from, const std::string& to) = 0;
  virtual void Remove(const std::string& name) = 0;
};

/// The per-user store for the window layout.
class UserSettings {
 public:
  virtual ~UserSettings() = default;
  virtual int Get(const std::string& section, const std::string& key, int defaultValue) = 0;
  virtual void Save(const std::string& section, const std::string& key, int value) = 0;
};

}  // namespace ng
