#include "tracker/state_file.h"

#include <algorithm>
#include <array>
#include <set>
#include <span>
#include <utility>

#include "app/settings/encoding.h"
#include "base/number_text.h"
#include "tracker/state_fields.h"

namespace ng {
namespace {

constexpr const char* kSystem = "SystemState";

struct StateKey {
  const char* written;
  const char* read;
  FightNumber member;
};

// No written file holds "RoundCnt" or "CurPCpointer": a restored fight begins at combat turn 0 with
// nobody displayed.
const std::array<StateKey, 9> kCounters = {
    {{"InfoCnt", "InfoCnt", &Fight::InfoCnt},
     {"InitPhase", "InitPhase", &Fight::InitPhase},
     {"RoundCount", "RoundCnt", &Fight::RoundCount},
     {"CurrentPCpointer", "CurPCpointer", &Fight::CurrentPCpointer},
     {"PhaseCnt", "PhaseCnt", &Fight::PhaseCnt},
     {"SeqNum", "SeqNum", &Fight::SeqNum},
     {"TurnNum", "TurnNum", &Fight::TurnNum},
     {"LTurn", "lturn", &Fight::LTurn},
     {"grenadeCnt", "grenadeCnt", &Fight::grenadeCnt}}};

/// These stand behind the turn list.
const std::array<StateKey, 2> kGreenRows = {
    {{"CurGreen", "CurGreen", &Fight::CurGreen}, {"lastGreen", "lastGreen", &Fight::lastGreen}}};

std::string Numbered(const char* word, int number) { return word + std::to_string(number); }

class StateWriter {
 public:
  explicit StateWriter(const Fight& fight) : fight_(fight) {}

  std::string Write() {
    Section(kSystem);
    const Integer n = fight_.CountPlayers();
    Line("NumPlayers", PrintForm(n));
    Counters(kCounters);
    for (int i = 0; i <= fight_.TurnNum; ++i) {
      Line(Numbered("Turn", i), PrintForm(fight_.TurnHistory[i].Turn));
      Line(Numbered("2Turn", i), PrintForm(fight_.TurnHistory[i].TwoTurn));
    }
    Counters(kGreenRows);
    for (const Slot slot : SlotsUpTo(n)) WriteSlot(slot);
    return text_;
  }

 private:
  void Section(const std::string& name) { text_.append("[").append(name).append("]\r\n"); }
  void Line(const std::string& key, const std::string& value) {
    text_.append(key).append("=").append(value).append("\r\n");
  }
  void Counters(std::span<const StateKey> keys) {
    for (const StateKey& key : keys) Line(key.written, PrintForm(NumberIn(fight_, key.member)));
  }
  void WriteSlot(Slot slot) {
    Section(Numbered("Slot", slot.Value()));
    for (const SlotKey& key : SlotKeys()) {
      if (key.form == SlotForm::ReadAgain) continue;
      Line(key.key, WrittenValue(fight_.Players[slot], key));
    }
  }

  const Fight& fight_;
  std::string text_;
};

class StateReader {
 public:
  StateReader(const ProfileFile& file, Fight& fight, StateFileHost& host)
      : file_(file), fight_(fight), host_(host) {}

  /// Returns the combatants without their character files.
  std::vector<std::string> Read() {
    fight_.NumPlayers = LenientInteger(Value("NumPlayers"));
    // The imports count the combatants again; the number of slots to read stays.
    const Integer slots = fight_.NumPlayers;
    for (slot_ = 1; slot_ <= slots; ++slot_) ReadSlot();
    slot_ = 0;
    section_ = kSystem;
    ReadCounters(kCounters);
    ReadCounters(kGreenRows);
    ReadTurns();
    return std::move(withoutFile_);
  }

  /// What was read last.
  std::string Place() const { return slot_ == 0 ? key_ : key_ + ", slot " + std::to_string(slot_); }

 private:
  std::string_view Value(const std::string& key) {
    key_ = key;
    return file_.Value(section_, key_);
  }

  void ReadSlot() {
    section_ = Numbered("Slot", slot_);
    const std::string fileName(Value("Filename"));
    const bool imported = host_.ImportCharacter(fileName);
    for (const SlotKey& key : SlotKeys()) {
      const std::string_view text = Value(key.key);
      TakeValue(fight_.Players[Slot::From(slot_)], key, text);
    }
    PlayerRecord& record = fight_.Players[Slot::From(slot_)];
    // A nameless slot was a gap in the table, with no file to miss.
    if (!imported && !record.Name.empty() && missing_.insert(fileName).second) {
      withoutFile_.push_back(record.Name);
    }
    key_ = "NoteFileName";
    if (!record.NoteFileName.empty()) record.Notes = host_.ShowNote(record.NoteFileName);
  }

  void ReadCounters(std::span<const StateKey> keys) {
    for (const StateKey& key : keys) {
      StoreNumber(fight_, key.member, LenientInteger(Value(key.read)));
    }
  }

  /// The list has no count of its own: it ends with the first entry that is missing or empty.
  void ReadTurns() {
    for (int i = 0;; ++i) {
      const std::string turn = DecodeNG3(Value(Numbered("Turn", i)));
      if (turn.empty()) return;
      fight_.TurnHistory[i].Turn = LenientInteger(turn);
      fight_.TurnHistory[i].TwoTurn = LenientInteger(DecodeNG3(Value(Numbered("2Turn", i))));
    }
  }

  const ProfileFile& file_;
  Fight& fight_;
  StateFileHost& host_;
  std::string section_ = kSystem;
  std::string key_;
  /// 0 outside the slots.
  int slot_ = 0;
  std::set<std::string> missing_;
  std::vector<std::string> withoutFile_;
};

}  // namespace

std::string StateFileText(const Fight& fight) { return StateWriter(fight).Write(); }

std::vector<std::string> NamesLeftOut(const Fight& fight) {
  std::vector<std::string> names;
  const Slot last = Slot::From(fight.CountPlayers());
  for (const Slot slot : AllSlots()) {
    const std::string& name = fight.Players[slot].Name;
    if (slot > last && !name.empty()) names.push_back(name);
  }
  return names;
}

bool IsStateFile(const ProfileFile& file) { return file.HasSection(kSystem); }

int CombatantsIn(const ProfileFile& file) {
  return static_cast<int>(std::clamp(LeadingNumber(file.Value(kSystem, "NumPlayers")), 0.0,
                                     static_cast<double>(Fight::kLastSlot)));
}

std::vector<std::string> ReadStateFile(const ProfileFile& file, Fight& fight, StateFileHost& host) {
  StateReader reader(file, fight, host);
  try {
    return reader.Read();
  } catch (const RuntimeError& error) {
    throw RuntimeError(error.Number(), reader.Place());
  }
}

}  // namespace ng
