#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "tracker/fight/player_record.h"

namespace ng {

/// How a combatant's value is written to the state file and how it is read back. The two differ in
/// places, since saved fights of earlier years hold it so, and a restored fight shows it.
enum class SlotForm {
  /// Text as it is, both ways; a line break, which would end the value, is written as a blank.
  Plain,
  /// Text written as it is, but for its line breaks, and decoded when read: a "_" in it comes
  /// back as a blank.
  Name,
  /// Text encoded when written, decoded when read.
  Encoded,
  /// Text written as a plain one; read as a number and kept as the plain text of that number.
  Weight,
  /// A whole number, read leniently: a missing one is 0.
  Number,
  /// A whole number without which the file does not load.
  Strict,
  /// "1" for everything but false; true when the number read is 1.
  Flag,
  /// A line with nothing behind the "="; read as a number, and so 0.
  Emptied,
  /// No line of its own: the line that an earlier key wrote is read once more.
  ReadAgain,
};

/// One key of a "[Slot...]" section.
struct SlotKey {
  using Member = std::variant<std::string PlayerRecord::*, Integer PlayerRecord::*,
                              Boolean PlayerRecord::*, std::int32_t PlayerRecord::*>;
  const char* key;
  SlotForm form;
  Member from;
  /// Where the reader puts the value; not always where the writer took it from.
  Member into;
};

/// Every key of a slot's section, in the order of writing and of reading; player_fields.def has the
/// rows.
const std::vector<SlotKey>& SlotKeys();

/// What is written behind the "=".
std::string WrittenValue(const PlayerRecord& record, const SlotKey& key);

/// Stores what stood behind the "=". Type mismatch for a strict value that is no whole number;
/// Overflow for a number that its field cannot hold.
void TakeValue(PlayerRecord& record, const SlotKey& key, std::string_view text);

}  // namespace ng
