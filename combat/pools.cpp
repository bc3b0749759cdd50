#include "combat/pools.h"

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

}  // namespace

void PoolPanel::Show(const PlayerRecord& record) {
  for (const Pool& pool : kPools) this->*pool.box = PlainText(record.*pool.field);
}

void PoolPanel::Sync(PlayerRecord& record) const {
  for (const Pool& pool : kPools) record.*pool.field = LenientInteger(this->*pool.box);
}

}  // namespace ng
