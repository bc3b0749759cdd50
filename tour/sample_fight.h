#pragma once

#include "tour/guide.h"
#include "tour/sample_program.h"

namespace ng {

/// Plays the sample fight, from the empty window to the question at the end, and has the guide take
/// a picture of every window on the way.
void PlaySampleFight(Guide& guide, SampleProgram& program);

}  // namespace ng
