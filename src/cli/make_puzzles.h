#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// Makes and writes as many puzzles as are asked for, each from a square of its own. The same seed
/// gives the same ones. Throws Impossible for what no puzzle can be.
void MakePuzzles(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
