#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "base/index.h"
#include "base/integer.h"

namespace ng {

/// Index into the combatant table, 1 to 100; 0 means "none".
using Slot = Index<struct SlotTag>;
/// Place in the initiative order, 1 to 100; 0 means "in no place".
using OrderPosition = Index<struct OrderPositionTag>;
/// Index of an imported character sheet, 1 to 50; 0 means "none".
using CharacterIndex = Index<struct CharacterIndexTag>;

/// The two condition tracks, with the index of their controls.
enum class Track { Physical = 0, Stun = 1 };

/// The two ready weapons, with the index of their controls.
enum class Weapon { Primary = 0, Secondary = 1 };

/// One combatant. The fields carry the names that the state file gives them.
struct PlayerRecord {
  /// Display name; an empty one means that the slot holds no combatant. Copies are named with the
  /// original's name, "::" and the number of the copy.
  std::string Name;
  /// Full name of the character file that the combatant came from.
  std::string Filename;
  /// Has put off its action.
  Boolean Delay;
  /// Takes no part in initiative.
  Boolean inactive;
  /// Has the turn (the green row); at most one combatant of the order.
  Boolean SetGreen;
  /// Grenades that are still to go off, a line each, ended by CR LF; not saved.
  std::string Events;
  /// `RoundCount` when the combatant last delayed or threw a grenade.
  Integer roundcnt;
  /// 0 is physical (augmented initiative), anything else astral (natural initiative + 20).
  std::int32_t CurInitMode = 0;
  /// Initiative dice and reaction, natural and augmented.
  Integer CurInitNatural;
  Integer CurInitAugmented;
  Integer CurReactNatural;
  Integer CurReactAugmented;
  /// Boxes on the physical track; those past the tenth are overflow.
  Integer CurDamPhysical;
  Integer CurDamOver;
  /// Boxes on the stun track, 0 to 10.
  Integer CurDamStun;
  /// Condition code, the stun letter and the physical letter ("0L"); the grid's third column.
  std::string CondCode;
  /// Wound modifier, 0 to 6: added to target numbers, subtracted from initiative.
  Integer TNDamMod;

  // The two ready weapons as the weapon panel shows them.
  std::string PrimHand;
  /// Rounds fired since the last reload.
  std::string PrimAmmo = "0";
  std::string SecHand;
  std::string SecAmmo = "0";
  std::string PrimWeapStatDamage;
  std::string PrimWeapStatCclrch;
  std::string PrimWeapStatRng1;
  std::string PrimWeapStatRng2;
  std::string PrimWeapStatRng3;
  std::string PrimWeapStatRng4;
  std::string PrimWeapStatAmmo;
  std::string SecWeapStatDamage;
  std::string SecWeapStatCclrch;
  std::string SecWeapStatRng1;
  std::string SecWeapStatRng2;
  std::string SecWeapStatRng3;
  std::string SecWeapStatRng4;
  std::string SecWeapStatAmmo;

  /// Initiative as rolled: dice, reaction and, in astral mode, 20; 0 when out of the fight.
  Integer RRSLT;
  /// `RRSLT` less `TNDamMod`: orders the table and is the score that passes take 10 from.
  Integer FRSLT;
  /// 1 to 1000, drawn at every re-roll; kept and saved, but no tie-break.
  Integer Random;
  /// The pass in which the combatant last delayed, resumed or was handled.
  Integer PhaseNum;
  Integer lastTab;
  std::string Skill;
  /// Carried weight in kilograms, as plain text.
  std::string LastWeight = "0";
  CharacterIndex CharacterData;
  /// Has had its action in the current pass.
  Boolean TurnDone;
  std::string Race;

  /// Rounds fired this turn by each weapon; the sequencer sets them back to "0".
  std::string TBTTPrim = "0";
  std::string RCPrim = "0";
  std::string GyroPrim = "0";
  std::string URCPrim = "0";
  Integer SmLPrim;
  Integer LaserPrim;
  Integer SmtGogPrim;
  std::string TBTTSec = "0";
  std::string RCSec = "0";
  std::string GyroSec = "0";
  std::string URCSec = "0";
  Integer SmLSec;
  Integer LaserSec;
  Integer SmtGogSec;
  Integer TwoGuns;
  /// Boxes of damage that do not count for the wound modifier.
  Integer PainResistance;
  Integer ArmorCPmod;
  Integer ArmorQCKmod;
  Integer ArmorBAL;
  Integer ArmorIMP;

  std::string SkillPrimaryName;
  Integer SkillPrimaryValue;
  std::string SkillSecondaryName;
  Integer SkillSecondaryValue;
  std::string SkillUnarmedName;
  Integer SkillUnarmedValue;
  std::string SkillLastName;
  Integer SkillLastValue;
  /// The weapon that attacked last: 1 primary, 2 secondary, 3 unarmed or melee, 0 none yet.
  Integer SkillWeapType;
  std::string NoteFileName;
  /// The note as typed; its file, not the state file, keeps it.
  std::string Notes;

  Boolean natThermographic;
  Boolean natLowLight;
  Boolean augThermographic;
  Boolean augLowLight;

  /// Dice pools: combat, spell, dice set aside from the spell pool, astral, karma.
  Integer CP;
  Integer SP;
  Integer SD;
  Integer AS;
  Integer KP;

  /// Cleared when the combatant acts; while it is clear, each new action starts `TBTTPrim` and
  /// `TBTTSec` at "0". The sequencer's alone.
  Boolean Resumed;
  /// The range bracket chosen for each weapon, 0 short to 3 extreme; kept while the program runs.
  Integer RangeSelPrim;
  Integer RangeSelSec;
  /// Set by an attack that fired at least one round, cleared by one that fired none.
  Boolean FiredThisTurn;

  friend bool operator==(const PlayerRecord&, const PlayerRecord&) = default;
};

/// Boxes of a track. A full physical track is dying, a full stun track unconscious.
constexpr int kTrackBoxes = 10;

inline bool IsDying(const PlayerRecord& record) { return record.CurDamPhysical >= kTrackBoxes; }
inline bool IsUnconscious(const PlayerRecord& record) { return record.CurDamStun >= kTrackBoxes; }
/// Either takes the combatant out of initiative.
inline bool IsOutOfFight(const PlayerRecord& record) {
  return IsDying(record) || IsUnconscious(record);
}

/// A field of the record with its name, for those who go through all of them.
struct PlayerField {
  using Member =
      std::variant<std::string PlayerRecord::*, Integer PlayerRecord::*, Boolean PlayerRecord::*,
                   std::int32_t PlayerRecord::*, CharacterIndex PlayerRecord::*>;
  const char* name;
  Member member;
};

/// Every field of the record, in the order of its declaration.
const std::vector<PlayerField>& PlayerFields();

/// The field's value as plain text; flags show their number.
std::string FieldText(const PlayerRecord& record, const PlayerField& field);

}  // namespace ng
