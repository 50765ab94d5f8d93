#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// Makes and writes the requested puzzles, each from a square of its own. The same seed gives the
/// same puzzles. At the end, tells what was not reached, and then returns false. Throws Impossible
/// if no puzzle was made.
bool MakePuzzles(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
