#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/ports.h"
#include "journal/journal_file.h"

namespace ng {

/// Writes the journal of the fight on the desk. A fight without a step leaves no file: until the
/// first one all is held back. When the device fails that is told once, and the fight goes on in
/// memory.
class JournalWriter {
 public:
  /// The journals of this many fights are kept.
  static constexpr std::size_t kKept = 20;

  JournalWriter(JournalStore& store, Clock& clock) : store_(store), clock_(clock) {}
  ~JournalWriter() { Close(); }

  JournalWriter(const JournalWriter&) = delete;
  JournalWriter& operator=(const JournalWriter&) = delete;

  /// Begins a journal; the one before is closed.
  void Begin(const JournalHead& head);
  /// Goes on with a kept journal under a new name, behind its whole bytes; the one before is
  /// closed. Throws the file errors, and then nothing has changed.
  void GoOn(const std::string& name, const Journal& journal);

  /// The lines of an entry, with the contents it read that the journal does not have yet.
  void WriteEntry(const std::string& lines, const Contents& contents,
                  const std::vector<std::string>& newContents);
  void WriteCursor(std::size_t cursor) { Write(CursorRecord(cursor)); }
  /// Written only where it differs from the last one.
  void WriteSummary(const FightSummary& summary);
  /// There is something worth keeping: from now on there is a file.
  void Keep();
  /// Puts what was written on the device, without waiting.
  void Flush();
  /// Ends the journal properly.
  void Close();

  /// The name of the open journal, empty where there is none.
  const std::string& Name() const { return name_; }
  /// What has to be told of the device; empty for nothing.
  std::string TakeNotice();

 private:
  void Write(const std::string& body);
  void Append(const std::string& bytes);
  void StopWriting(const char* why);

  JournalStore& store_;
  Clock& clock_;
  std::unique_ptr<DurableFile> file_;
  std::string name_;
  /// Held back until there is a file.
  std::string pending_;
  bool failed_ = false;
  FightSummary summary_;
  std::string notice_;
};

}  // namespace ng
