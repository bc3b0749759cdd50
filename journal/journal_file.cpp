#include "journal/journal_file.h"

#include <optional>
#include <stdexcept>

#include "base/text.h"
#include "journal/act_text.h"

namespace ng {
namespace {

constexpr std::string_view kFormat = "journal 1";
constexpr std::string_view kSummary = "fight ";
constexpr std::string_view kCursor = "cursor ";

FightSummary SummaryOf(std::string_view line) {
  WordReader words(line);
  words.Word();
  FightSummary summary;
  summary.combatants = words.Number();
  summary.combatTurn = words.Number();
  summary.stateFile = words.Text();
  return summary;
}

JournalHead HeadOf(std::string_view body) {
  LineReader lines(body);
  std::string_view line;
  if (!lines.Next(line) || line != kFormat) throw std::runtime_error("This is not a journal.");
  JournalHead head;
  while (lines.Next(line)) {
    WordReader words(line);
    const std::string_view word = words.Word();
    if (word == "program") head.program = words.Text();
    if (word == "seed") head.seed = static_cast<std::uint32_t>(std::stoul(words.Text()));
    if (word != "location") continue;
    head.location.commandLine = words.Text();
    head.location.directory = words.Text();
  }
  return head;
}

/// Takes the records behind the head.
class BodyReader {
 public:
  explicit BodyReader(Journal& journal) : journal_(journal), reader_(journal.contents) {}

  void Take(std::string_view body) {
    if (body.starts_with(kSummary)) {
      journal_.summary = SummaryOf(body.substr(0, body.find('\n')));
    } else if (body.starts_with(kCursor)) {
      WordReader words(body.substr(0, body.find('\n')));
      words.Word();
      journal_.timeline.SetCursor(static_cast<std::size_t>(words.Number()));
    } else if (body.starts_with("content ")) {
      reader_.Take(body.substr(0, body.find('\n')));
    } else {
      journal_.timeline.Add(body);
    }
  }

 private:
  Journal& journal_;
  EntryReader reader_;
};

}  // namespace

std::string HeadRecord(const JournalHead& head) {
  std::string body(kFormat);
  body.append("\nprogram ").append(Quoted(head.program));
  body.append("\nseed ").append(Quoted(std::to_string(head.seed)));
  body.append("\nlocation ").append(Quoted(head.location.commandLine)).append(" ");
  return body.append(Quoted(head.location.directory)).append("\n");
}

std::string ContentRecord(std::string_view digest, std::string_view content) {
  std::string body = "content ";
  body.append(digest) += ' ';
  AppendQuoted(body, content);
  return body.append("\n");
}

std::string CursorRecord(std::size_t cursor) {
  return std::string(kCursor).append(std::to_string(cursor)).append("\n");
}

std::string SummaryRecord(const FightSummary& summary) {
  std::string body(kSummary);
  body.append(std::to_string(summary.combatants)).append(" ");
  body.append(std::to_string(summary.combatTurn)).append(" ");
  return body.append(Quoted(summary.stateFile)).append("\n");
}

Journal ReadJournal(std::string_view text) {
  const JournalRecords records = ReadRecords(text);
  if (records.bodies.empty()) {
    throw std::runtime_error(text.empty() ? "The journal is empty." : "This is not a journal.");
  }
  Journal journal;
  journal.head = HeadOf(records.bodies.front());
  journal.wholeBytes = records.wholeBytes;
  journal.end = records.end;
  BodyReader reader(journal);
  for (std::size_t i = 1; i < records.bodies.size(); ++i) reader.Take(records.bodies[i]);
  return journal;
}

FightSummary ReadSummary(std::string_view text) {
  const std::string mark = std::string("\n").append(kSummary);
  const std::size_t begin = text.rfind(mark);
  if (begin == std::string_view::npos) return {};
  const std::string_view line = text.substr(begin + 1);
  return SummaryOf(line.substr(0, line.find('\n')));
}

}  // namespace ng
