#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// Makes and writes the requested puzzles, each from a square of its own. The same seed gives the
/// same puzzles. Throws Impossible if there is no such puzzle.
void MakePuzzles(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
