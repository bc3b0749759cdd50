#include "journal/journal_writer.h"

#include <utility>

#include "base/runtime_error.h"
#include "journal/kept_fights.h"

namespace ng {

void JournalWriter::Begin(const JournalHead& head) {
  Close();
  failed_ = false;
  summary_ = {};
  pending_ = Framed(HeadRecord(head));
}

void JournalWriter::GoOn(const std::string& name, const Journal& journal) {
  std::unique_ptr<DurableFile> file;
  std::string newName = NewJournalName(store_, clock_.Now());
  if (journal.end == JournalRecords::End::Damaged) {
    // What lies behind the damage may be of use to somebody: that file is left alone.
    file = store_.Open(newName, 0);
    file->Append(store_.Read(name).substr(0, journal.wholeBytes));
  } else {
    file = store_.Open(name, journal.wholeBytes);
    store_.Rename(name, newName);
  }
  // Only now: where the other cannot be opened the fight on the desk keeps its journal.
  Close();
  file_ = std::move(file);
  name_ = std::move(newName);
  failed_ = false;
  pending_.clear();
  summary_ = journal.summary;
}

void JournalWriter::WriteEntry(const std::string& lines, const Contents& contents,
                               const std::vector<std::string>& newContents) {
  for (const std::string& digest : newContents) {
    Write(ContentRecord(digest, contents.find(digest)->second));
  }
  Write(lines);
}

void JournalWriter::WriteSummary(const FightSummary& summary) {
  if (summary == summary_) return;
  summary_ = summary;
  Write(SummaryRecord(summary));
}

void JournalWriter::Keep() {
  if (file_ != nullptr || failed_ || pending_.empty()) return;
  try {
    name_ = NewJournalName(store_, clock_.Now());
    file_ = store_.Open(name_, 0);
    RemoveOldJournals(store_, kKept);
  } catch (const RuntimeError& error) {
    StopWriting(error.what());
    return;
  }
  Append(std::exchange(pending_, {}));
}

void JournalWriter::Write(const std::string& body) {
  if (failed_) return;
  if (file_ == nullptr) {
    pending_ += Framed(body);
  } else {
    Append(Framed(body));
  }
}

void JournalWriter::Append(const std::string& bytes) {
  try {
    file_->Append(bytes);
  } catch (const RuntimeError& error) {
    StopWriting(error.what());
  }
}

void JournalWriter::StopWriting(const char* why) {
  failed_ = true;
  file_.reset();
  name_.clear();
  pending_.clear();
  notice_ = std::string("The journal is not written, so undo ends with this run: ") + why;
}

void JournalWriter::Flush() {
  if (file_ != nullptr) file_->Flush();
}

void JournalWriter::Close() {
  pending_.clear();
  if (file_ == nullptr) return;
  file_.reset();
  try {
    store_.Rename(name_, ClosedName(name_));
  } catch (const RuntimeError&) {
    // It is offered as one that was not closed, which loses nothing.
  }
  name_.clear();
}

std::string JournalWriter::TakeNotice() { return std::exchange(notice_, {}); }

}  // namespace ng
