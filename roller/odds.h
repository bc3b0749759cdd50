#pragma once

#include <string>

#include "base/integer.h"

namespace ng {

/// The exact chance, 0 to 1, that an open-ended die reaches `target`. A fraction asks for the next
/// whole total; a target of 1 or below is always reached; a target of 6 needs a 7, since no total
/// is ever 6.
double ChanceOfDie(double target);

/// The exact chance, 0 to 1, of at least one success with this many dice; 0 without dice.
double ChanceOfSuccess(Integer dice, double target);

/// The successes that this many dice give on average.
double ExpectedSuccesses(Integer dice, double target);

/// Both in plain words, a line each, for the place below the number of dice. A chance is called
/// certain only when it is; what is rounded away at either end is said to be "over" or "under".
std::string OddsSentence(Integer dice, double target);

}  // namespace ng
