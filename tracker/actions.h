#pragma once

#include <string>

#include "base/ports.h"
#include "import/character_sheet.h"
#include "notes/gm_log.h"
#include "tracker/fight/fight.h"
#include "tracker/grid.h"
#include "tracker/sequencer.h"

namespace ng {

/// What the combatant menu does to the displayed combatant. With nobody displayed nothing happens,
/// but for the deletion, which says so.
class Actions {
 public:
  /// The largest number of copies that one command makes: one more than the refusal's text says.
  /// Whoever asks for 21 gets them.
  static constexpr int kMostCopies = 21;

  Actions(Fight& fight, CharacterTable& characters, InitiativeGrid& grid, Sequencer& sequencer,
          GmLog& log, Prompts& prompts, SequencerHost& host)
      : fight_(fight),
        characters_(characters),
        grid_(grid),
        sequencer_(sequencer),
        log_(log),
        prompts_(prompts),
        host_(host) {}

  /// The check marks of the two toggles.
  bool delayChecked = false;
  bool inactiveChecked = false;

  /// Inverts the mark, then declares a delay (refused outside the combatant's turn, the mark stays
  /// inverted) or lets the delayed combatant act now, interrupting the current step.
  void ToggleDelay();
  /// Inverts the mark, then takes the combatant out of initiative or back in with a fresh roll. The
  /// order follows at the next sort.
  void ToggleInactive();
  /// A grenade goes off when its thrower is passed in a later combat turn.
  void Grenade();
  /// A rocket goes off at the end of the combat turn.
  void Rocket();
  /// Asks for a number and makes that many copies. Returns the copies made, fewer than asked when
  /// the table is full.
  Integer Multiply(Integer& asked);
  void Remove();
  /// Clears a slot in place, as a hole, and rebuilds the order from the slots.
  void RemovePlayer(Slot slot);
  /// Removes the combatants of slots CountPlayers() to 1, the last first; one beyond a hole
  /// outlasts it.
  void RemoveAll();

 private:
  bool Displaying() const { return fight_.CurrentPCpointer != 0; }
  PlayerRecord& Displayed() { return fight_.Players[fight_.CurrentPCpointer]; }
  void DeclareDelay();
  void Interrupt();
  void MakeCopy(Slot original, Slot copy, int number);
  void ReleaseCharacter(Slot slot);
  void RebuildOrder();

  Fight& fight_;
  CharacterTable& characters_;
  InitiativeGrid& grid_;
  Sequencer& sequencer_;
  GmLog& log_;
  Prompts& prompts_;
  SequencerHost& host_;
};

}  // namespace ng
