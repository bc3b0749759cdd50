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

/// One combatant. The fields, with what they mean, stand in player_fields.def; they carry the names
/// that the state file gives them.
struct PlayerRecord {
#define NG_FIELD(type, name, start) type name{start};
#include "tracker/fight/player_fields.def"

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

/// Every field of the record, in the order of player_fields.def.
const std::vector<PlayerField>& PlayerFields();

/// The field's value as plain text; flags show their number.
std::string FieldText(const PlayerRecord& record, const PlayerField& field);

}  // namespace ng
