#pragma once

#include <string>

#include "base/integer.h"
#include "base/ports.h"
#include "tracker/fight/fight.h"
#include "tracker/grid.h"

namespace ng {

/// What the sequencer needs of the window above it.
class SequencerHost {
 public:
  virtual ~SequencerHost() = default;
  /// Displays a combatant's sheet and makes it the displayed combatant.
  virtual void XFerPC(Slot slot) = 0;
  /// Writes what the game master changed on the displayed sheet back into its record.
  virtual void SyncSheet() = 0;
  /// Refills every combatant's dice pools at the start of a combat turn.
  virtual void RefreshPools() = 0;
};

/// Rolls and orders initiative and steps through the combat turn: passes of ten points, each
/// combatant at most one action a pass, the turn over after the tenth pass. Recorded steps are
/// played again by Previous and Next instead of moving the fight on.
class Sequencer {
 public:
  static constexpr int kAstralBonus = 20;

  Sequencer(Fight& fight, InitiativeGrid& grid, Uniform& uniform, Prompts& prompts,
            SequencerHost& host)
      : fight_(fight), grid_(grid), uniform_(uniform), prompts_(prompts), host_(host) {}

  /// The caption of the current step.
  const std::string& lblPhase() const { return lblPhase_; }

  /// Dice total plus reaction, plus 20 in astral mode. A dice count below 1 rolls nothing.
  Integer RollInitiative(Slot slot);
  /// Works out `FRSLT` and orders the table by it, ties by augmented, then natural reaction. Full
  /// ties mostly keep their order, but the exchange with a third combatant can turn them round.
  void SortInitiative();

  /// Rolls for everybody and starts a combat turn. With `copiesShareRoll` a combatant whose name
  /// contains another's name and "::" anywhere takes that one's roll.
  void Reroll(Boolean copiesShareRoll);
  /// Starts a combat turn with the rolls as they are.
  void Reset();
  void Next();
  /// Walks back over recorded steps; neither shows a sheet nor moves `LTurn`.
  void Previous();
  void ClearEvents();
  /// Takes up a turn number from a saved fight: sets `LTurn` and nothing else.
  void TakeUpTurn(OrderPosition turn) { fight_.LTurn = turn; }
  /// 0 is physical, 1 astral, for the displayed combatant; counts from the next re-roll on.
  void SetInitMode(int option);

 private:
  /// How the scan goes on after one order position was looked at.
  enum class Look { GoOn, Delayed, Acted };

  bool ReplayRecordedStep();
  void Scan(Integer n);
  Look LookAtCurrent();
  /// Opens the next pass; false when the combat turn is over.
  bool OpenNextPass();
  void EndCombatTurn();
  void TakeUpDelayed(Slot slot);
  void ShareRollsWithCopies();
  /// Whether `b` goes before `a`.
  bool GoesBefore(Slot b, Slot a) const;
  void RecordStep(Slot slot);
  void PaintTurn(OrderPosition p);

  Fight& fight_;
  InitiativeGrid& grid_;
  Uniform& uniform_;
  Prompts& prompts_;
  SequencerHost& host_;
  std::string lblPhase_ = "Beginning of turn: Phase 0";
};

}  // namespace ng
