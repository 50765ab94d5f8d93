#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// Builds and writes the requested squares. Throws Impossible if there is no such square. False if
/// a line of a list of top rows gives none.
bool BuildSquares(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
