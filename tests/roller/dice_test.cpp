#include "roller/dice.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>

#include "base/seeded_uniform.h"
#include "roller/odds.h"

namespace ng {
namespace {

TEST(Dice, FacesComeFromTheRoundedProductAndNotFromScaling) {
  struct : Uniform {
    float value = 0;
    float Next() override { return value; }
  } uniform;
  // 0; 119.2 is 119; 500,000,000 and 1,000,000,000, where scaling by 6 would show 2 and 4;
  // 976,562.5 and 2,929,687.5 go to the even 976,562 and 2,929,688; 1,999,999,880.8 is ...881.
  const std::pair<float, int> cases[] = {{0.0F, 1},        {0x1p-24F, 6}, {0.25F, 3},
                                         {0.5F, 5},        {0x1p-11F, 3}, {3 * 0x1p-11F, 3},
                                         {1 - 0x1p-24F, 4}};
  for (const auto& [value, face] : cases) {
    uniform.value = value;
    EXPECT_EQ(RollFace(uniform).Value(), face) << value;
  }
}

TEST(Dice, AMillionRollsFollowTheExactDistribution) {
  constexpr int kRolls = 1'000'000;
  SeededUniform uniform(20'250'101);
  std::map<int, int> counts;
  for (int roll = 0; roll < kRolls; ++roll) ++counts[RollOpenEnded(uniform).total.Value()];
  for (const auto& [total, count] : counts) EXPECT_NE(total % 6, 0) << count << " of " << total;
  for (const int total : {1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 13, 14, 15, 16, 17, 19}) {
    const double chance = std::pow(6, -(total / 6) - 1);
    EXPECT_NEAR(counts[total], kRolls * chance, 5 * std::sqrt(kRolls * chance)) << total;
  }
}

TEST(Odds, AreThoseWorkedOutByHand) {
  const std::pair<double, double> byHand[] = {
      {-3, 1},     {1, 1},       {1.5, 5 / 6.}, {4, 1 / 2.},   {5.5, 1 / 6.},  {6, 1 / 6.},
      {7, 1 / 6.}, {8, 5 / 36.}, {12, 1 / 36.}, {13, 1 / 36.}, {14, 5 / 216.}, {INFINITY, 0}};
  for (const auto& [target, chance] : byHand) EXPECT_NEAR(ChanceOfDie(target), chance, 1e-15);
  EXPECT_NEAR(ChanceOfSuccess(2, 6), 11 / 36., 1e-15);
  EXPECT_EQ(OddsSentence(-2, 1), "No dice, so no success.");
  EXPECT_EQ(OddsSentence(30, 2), "At least one success: over 99.9 %.\nOn average: 25.");
  EXPECT_EQ(OddsSentence(1, 30), "At least one success: under 0.1 %.\nOn average: under 0.01.");
}

}  // namespace
}  // namespace ng
