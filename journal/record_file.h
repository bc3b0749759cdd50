#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ng {

// A journal on the disk is a row of records. Each begins with a line "#= LENGTH CHECKSUM" for the
// bytes that follow, so that a record that was not written to its end, and one that was changed
// since, are told from whole ones. To the player of golden fights these lines are remarks.

/// A record that holds `body`, which ends with LF.
std::string Framed(std::string_view body);

struct JournalRecords {
  /// The bodies of the whole records from the first on; they view into the text.
  std::vector<std::string_view> bodies;
  /// Bytes up to the end of the last of them.
  std::size_t wholeBytes = 0;
  /// Why reading stopped there.
  enum class End {
    /// At the end of the text.
    Whole,
    /// The text ends within a record.
    Torn,
    /// Bytes do not fit their checksum, or no record begins where one should, and more follows.
    Damaged
  } end = End::Whole;
};

JournalRecords ReadRecords(std::string_view text);

}  // namespace ng
