#include "combat/pools.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"

namespace ng {
namespace {

struct Pool {
  std::string PoolPanel::*box;
  Integer PlayerRecord::*field;
};

constexpr std::array<Pool, 5> kPools = {{
    {&PoolPanel::txtCP, &PlayerRecord::CP},
    {&PoolPanel::txtSP, &PlayerRecord::SP},
    {&PoolPanel::txtSD, &PlayerRecord::SD},
    {&PoolPanel::txtAS, &PlayerRecord::AS},
    {&PoolPanel::txtKP, &PlayerRecord::KP},
}};

/// Moves one die between two boxes, when there is one. Overflow, with neither box changed, where
/// the pool it goes to is full.
void MoveDie(std::string& from, std::string& to) {
  if (LeadingNumber(from) < 1) return;
  const std::string more = IncPool(to);
  LenientInteger(more);
  from = DecPool(from);
  to = more;
}

}  // namespace

std::string IncPool(const std::string& text) { return PlainText(LeadingNumber(text) + 1); }

std::string DecPool(const std::string& text) {
  const double value = LeadingNumber(text);
  if (ToInteger(value) < 1) return "0";
  return PlainText(std::max(value - 1, 0.0));
}

void PoolPanel::Show(const PlayerRecord& record) {
  for (const Pool& pool : kPools) this->*pool.box = PlainText(record.*pool.field);
}

void PoolPanel::Sync(PlayerRecord& record) const {
  for (const Pool& pool : kPools) record.*pool.field = LenientInteger(this->*pool.box);
}

void PoolPanel::SetAside() { MoveDie(txtSP, txtSD); }

void PoolPanel::TakeBack() { MoveDie(txtSD, txtSP); }

}  // namespace ng
