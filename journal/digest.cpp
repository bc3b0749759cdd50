#include "journal/digest.h"

#include <array>
#include <charconv>
#include <variant>

namespace ng {
namespace {

constexpr std::array<std::uint32_t, 256> kCrcTable = [] {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t i = 0; i < table.size(); ++i) {
    std::uint32_t rest = i;
    for (int bit = 0; bit < 8; ++bit) {
      rest = (rest & 1U) != 0 ? (rest >> 1U) ^ 0xEDB88320U : rest >> 1U;
    }
    table[i] = rest;
  }
  return table;
}();

/// Fowler, Noll and Vo's hash of 64 bits (FNV-1a).
class Hash {
 public:
  void Add(std::string_view bytes) {
    for (const char byte : bytes) Step(static_cast<unsigned char>(byte));
    // Tells where one value ends and the next begins.
    Step(0x100);
  }
  void Add(std::int64_t number) {
    for (unsigned shift = 0; shift < 64; shift += 16) {
      Step((static_cast<std::uint64_t>(number) >> shift) & 0xFFFFU);
    }
  }

  std::string Text() const {
    std::array<char, 16> digits{};
    digits.fill('0');
    std::array<char, 16> significant{};
    const auto end =
        std::to_chars(significant.data(), significant.data() + significant.size(), value_, 16);
    const auto length = static_cast<std::size_t>(end.ptr - significant.data());
    std::copy(significant.data(), end.ptr, digits.data() + digits.size() - length);
    return {digits.data(), digits.size()};
  }

 private:
  void Step(std::uint64_t part) { value_ = (value_ ^ part) * 0x100000001B3U; }

  std::uint64_t value_ = 0xCBF29CE484222325U;
};

void AddValue(Hash& hash, const std::string& value) { hash.Add(value); }
void AddValue(Hash& hash, std::int32_t value) { hash.Add(std::int64_t{value}); }
void AddValue(Hash& hash, Boolean value) { hash.Add(std::int64_t{value.Raw()}); }
template <typename Number>
void AddValue(Hash& hash, Number value) {
  hash.Add(std::int64_t{value.Value()});
}

}  // namespace

std::uint32_t Crc32(std::string_view bytes) {
  std::uint32_t rest = 0xFFFFFFFFU;
  for (const char byte : bytes) {
    rest = (rest >> 8U) ^ kCrcTable[(rest ^ static_cast<unsigned char>(byte)) & 0xFFU];
  }
  return ~rest;
}

std::string ContentDigest(std::string_view content) {
  Hash hash;
  hash.Add(content);
  return hash.Text();
}

std::string FightDigest(const Fight& fight) {
  Hash hash;
  for (const FightField& field : FightFields()) {
    std::visit([&](auto member) { AddValue(hash, fight.*member); }, field.member);
  }
  hash.Add(fight.GlobalEvents);
  for (const Slot slot : fight.InitOrder) AddValue(hash, slot);
  for (const HistoryStep& step : fight.TurnHistory) {
    AddValue(hash, step.Turn);
    AddValue(hash, step.TwoTurn);
  }
  for (const PlayerRecord& record : fight.Players) {
    // An empty slot is as good as any other.
    if (record == PlayerRecord{}) continue;
    for (const PlayerField& field : PlayerFields()) {
      std::visit([&](auto member) { AddValue(hash, record.*member); }, field.member);
    }
  }
  return hash.Text();
}

}  // namespace ng
