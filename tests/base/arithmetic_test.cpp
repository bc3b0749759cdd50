#include <gtest/gtest.h>

#include "base/fixed_table.h"
#include "base/index.h"
#include "base/integer.h"
#include "fakes/expect_error.h"

namespace ng {
namespace {

TEST(Integer, EveryResultOutsideSixteenBitsIsOverflow) {
  const Integer largest = 32767;
  const Integer smallest = -32768;
  EXPECT_EQ((largest + smallest).Value(), -1);
  EXPECT_RUNTIME_ERROR(largest + 1, "Overflow");
  EXPECT_RUNTIME_ERROR(smallest - 1, "Overflow");
  EXPECT_RUNTIME_ERROR(Integer(182) * 181, "Overflow");
  // Intermediate results count, even where the whole would fit.
  EXPECT_RUNTIME_ERROR(largest + 1 - 1, "Overflow");
  Integer counter = largest;
  EXPECT_RUNTIME_ERROR(counter += 1, "Overflow");
  EXPECT_EQ(counter, largest);
}

TEST(Boolean, IsTrueForMinusOneOnly) {
  EXPECT_TRUE(static_cast<bool>(Boolean(true)));
  EXPECT_EQ(Boolean(true).Raw(), -1);
  for (const int raw : {0, 1, 2, -2}) EXPECT_FALSE(static_cast<bool>(Boolean::FromRaw(raw)));
}

static_assert(std::is_convertible_v<bool, Boolean>);
static_assert(!std::is_constructible_v<Boolean, int>);
static_assert(!std::is_constructible_v<Boolean, Integer>);
static_assert(!std::is_constructible_v<Boolean, const char*>);

TEST(FixedTable, RefusesEveryIndexOutside) {
  FixedTable<int, 3> table;
  table[0] = 10;
  table[Integer(3)] = 13;
  EXPECT_EQ(table[0] + table[3], 23);
  EXPECT_RUNTIME_ERROR(table[4], "Subscript out of range");
  EXPECT_RUNTIME_ERROR(table[Integer(-1)], "Subscript out of range");
}

using Here = Index<struct HereTag>;
using There = Index<struct ThereTag>;
template <typename Key>
concept LooksUp = requires(FixedTable<int, 3, Here>& table, Key key) {
  table[key];
};
static_assert(LooksUp<Here> && !LooksUp<There> && !LooksUp<Integer>);
static_assert(!std::is_constructible_v<Here, There>);

TEST(Index, MayHoldAnySixteenBitNumberAndIsRefusedByItsTable) {
  FixedTable<int, 3, Here> table;
  int added = 0;
  for (const Here here : IndexRange<Here>(1, 3)) added += table[here] = here.Value();
  EXPECT_EQ(added, 6);
  for (const Here here : IndexRange<Here>(3, 2)) FAIL() << here.Value();
  for (const int number : {-32768, -1, 4, 32767}) {
    EXPECT_RUNTIME_ERROR(table[Here::From(number)], "Subscript out of range");
  }
  EXPECT_RUNTIME_ERROR(Here::From(32768), "Overflow");
}

}  // namespace
}  // namespace ng
