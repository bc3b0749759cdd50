#include "journal/record_file.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

#include "journal/digest.h"

namespace ng {
namespace {

constexpr std::string_view kMark = "#= ";

struct Heading {
  std::size_t length = 0;
  std::uint32_t checksum = 0;
};

template <typename Number>
bool TakeNumber(std::string_view& text, Number& number, int base, char end) {
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number, base);
  const auto length = static_cast<std::size_t>(result.ptr - text.data());
  if (result.ec != std::errc() || length == text.size() || text[length] != end) return false;
  text.remove_prefix(length + 1);
  return true;
}

/// Takes a heading with its line's end off the front.
std::optional<Heading> TakeHeading(std::string_view& text) {
  if (!text.starts_with(kMark)) return {};
  text.remove_prefix(kMark.size());
  Heading heading;
  if (!TakeNumber(text, heading.length, 10, ' ')) return {};
  if (!TakeNumber(text, heading.checksum, 16, '\n')) return {};
  return heading;
}

/// Why no whole record begins at `rest`. A record whose writing broke off is the last one, so that
/// no other begins behind it.
JournalRecords::End EndAt(std::string_view rest) {
  const bool begun = rest.starts_with(kMark.substr(0, rest.size()));
  const bool last = rest.find(std::string("\n").append(kMark)) == std::string_view::npos;
  return begun && last ? JournalRecords::End::Torn : JournalRecords::End::Damaged;
}

}  // namespace

std::string Framed(std::string_view body) {
  std::array<char, 16> checksum{};
  const auto end =
      std::to_chars(checksum.data(), checksum.data() + checksum.size(), Crc32(body), 16);
  std::string record(kMark);
  record.reserve(body.size() + 32);
  record.append(std::to_string(body.size())) += ' ';
  record.append(checksum.data(), end.ptr) += '\n';
  return record.append(body);
}

JournalRecords ReadRecords(std::string_view text) {
  JournalRecords records;
  std::string_view rest = text;
  while (!rest.empty()) {
    std::string_view next = rest;
    const std::optional<Heading> heading = TakeHeading(next);
    const bool whole = heading && heading->length <= next.size() &&
                       Crc32(next.substr(0, heading->length)) == heading->checksum;
    if (!whole) {
      records.end = EndAt(rest);
      return records;
    }
    records.bodies.push_back(next.substr(0, heading->length));
    rest = next.substr(heading->length);
    records.wholeBytes = text.size() - rest.size();
  }
  return records;
}

}  // namespace ng
