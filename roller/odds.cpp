#include "roller/odds.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"

namespace ng {
namespace {

/// Higher than any total that a die can count.
constexpr double kOutOfReach = 32768;

std::string Percentage(double chance) {
  if (chance < 0.001) return "under 0.1 %";
  if (chance > 0.999) return "over 99.9 %";
  return PlainText(std::round(chance * 1000) / 10) + " %";
}

std::string Average(double successes) {
  if (successes < 0.01) return "under 0.01";
  return PlainText(std::round(successes * 100) / 100);
}

}  // namespace

double ChanceOfDie(double target) {
  if (target <= 1) return 1;
  // To total 6s + r, with r from 1 to 6, a die shows s 6s and then at least r. With r = 6 that is
  // one more 6, which is as likely as 6(s + 1) + 1: the totals that do not exist need no case.
  const double below = std::ceil(std::min(target, kOutOfReach)) - 1;
  const double sixes = std::floor(below / 6);
  const double needed = below - 6 * sixes + 1;
  return (7 - needed) * std::pow(6, -(sixes + 1));
}

double ChanceOfSuccess(Integer dice, double target) {
  if (dice <= 0) return 0;
  // 1 - (1 - p)^n, in the form that keeps its digits when p is tiny.
  return -std::expm1(dice.Value() * std::log1p(-ChanceOfDie(target)));
}

double ExpectedSuccesses(Integer dice, double target) {
  return dice <= 0 ? 0 : dice.Value() * ChanceOfDie(target);
}

std::string OddsSentence(Integer dice, double target) {
  if (dice <= 0) return "No dice, so no success.";
  if (target <= 1) return "Every die is a success.";
  return "At least one success: " + Percentage(ChanceOfSuccess(dice, target)) +
         ".\nOn average: " + Average(ExpectedSuccesses(dice, target)) + ".";
}

}  // namespace ng
