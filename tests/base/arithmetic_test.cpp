#include <gtest/gtest.h>

#include "base/fixed_table.h"
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

TEST(FixedTable, RefusesEveryIndexOutside) {
  FixedTable<int, 3> table;
  table[0] = 10;
  table[Integer(3)] = 13;
  EXPECT_EQ(table[0] + table[3], 23);
  EXPECT_RUNTIME_ERROR(table[4], "Subscript out of range");
  EXPECT_RUNTIME_ERROR(table[Integer(-1)], "Subscript out of range");
}

}  // namespace
}  // namespace ng
