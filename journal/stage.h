#pragma once

#include <optional>

#include "app/session.h"
#include "base/seeded_uniform.h"
#include "journal/journal_file.h"
#include "journal/tape.h"

namespace ng {

/// The act that starts the program; it stands first in every journal.
inline constexpr const char* kStartAct = "start";

/// A session with its own random source and the tape as its ports. The session stays at its address
/// when the stage is set again.
class Stage {
 public:
  Stage(std::optional<RealPorts> real, Contents& contents);

  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  /// A fresh session before its start.
  void Set(const JournalHead& head);
  /// Plays an entry. False when it went another way than when it was recorded.
  bool Play(const Entry& entry);

  Session& session() { return *session_; }
  const Session& session() const { return *session_; }
  Tape tape;

 private:
  std::optional<SeededUniform> uniform_;
  std::optional<Session> session_;
};

/// Why a journal could not be followed to its end.
struct LostWay {
  /// The combat turn that was still the same.
  int combatTurn = 0;
};

/// Plays a journal on a stage of its own, comparing every digest; nothing when all are the same.
std::optional<LostWay> Audit(Journal& journal);

}  // namespace ng
