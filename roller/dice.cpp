#include "roller/dice.h"

#include "base/random_int.h"

namespace ng {

Integer RollFace(Uniform& uniform) { return RandomInt(uniform, 6); }

DieRoll RollOpenEnded(Uniform& uniform) {
  Integer face = RollFace(uniform);
  // A die that rolls on has shown a 6, so only a 1 at once is all ones.
  DieRoll die{face, face == 1};
  while (face == 6) {
    face = RollFace(uniform);
    die.total += face;
  }
  return die;
}

}  // namespace ng
