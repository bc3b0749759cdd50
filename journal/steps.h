#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/commands.h"
#include "app/session.h"

namespace ng {

/// The steps of undo: which entries each of them holds and what it is called. Successive edits of
/// one box are one step; looks, affairs of files and refusals belong to the step before.
class Steps {
 public:
  /// To be called before an act is done.
  void Before(const Session& session, const Act& act);
  /// Whether the act that was just done changed the fight. `refused` tells that something was told
  /// or cancelled, which an act that changed nothing shows by.
  bool Changed(const Session& session, const Act& act, bool refused);
  /// The act changed the fight; `entry` is its place in the timeline. Whatever was undone goes.
  void Add(const Act& act, std::size_t entry);
  void Clear();

  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < steps_.size(); }
  /// "Brand, physical 3 boxes"; empty for nothing.
  std::string UndoName() const;
  std::string RedoName() const;
  /// The entries that are done after an undo, or after a redo with `size` entries in all.
  std::size_t EntriesAfterUndo() const { return steps_[done_ - 1].first; }
  std::size_t EntriesAfterRedo(std::size_t size) const;
  /// So many entries are done now.
  void MoveTo(std::size_t entries);

  /// What a step is called.
  struct Name {
    /// Whom it is about; 0 and empty for the whole table.
    Slot slot;
    std::string who;
    std::string words;
  };
  /// The name of the step that begins with this entry; nothing when none does.
  std::optional<Name> BeginningAt(std::size_t entry) const;
  /// Bytes in memory.
  std::size_t Bytes() const;

 private:
  /// Small, since there are as many as acts.
  struct Step {
    /// Its first entry.
    std::uint32_t first = 0;
    /// Whom it is about.
    std::int16_t slot = 0;
    /// Index into `names_`.
    std::uint16_t who = 0;
    /// The act's index.
    std::int16_t element = 0;
    const Command* command = nullptr;
  };
  Name NameOf(const Step& step) const;
  std::uint16_t NumberOf(const std::string& who);

  std::vector<Step> steps_;
  /// Whom steps are about; the first, without a name, is the whole table.
  std::vector<std::string> names_{{}};
  std::size_t done_ = 0;
  Slot slot_;
  std::string who_;
  PlayerRecord displayed_;
  std::vector<Integer> counters_;
  bool delayChecked_ = false;
  bool inactiveChecked_ = false;
  /// The box that the entry before edited, so that a further edit goes on with it.
  struct Box {
    std::string control;
    int element = 0;
    friend bool operator==(const Box&, const Box&) = default;
  };
  static Box BoxOf(const Session& session, const Act& act);
  std::optional<Box> edited_;
  /// The act that was just done goes on with that edit.
  bool goesOn_ = false;
  /// The box that the act goes to, taken before it is done.
  Box box_;
};

}  // namespace ng
