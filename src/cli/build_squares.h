#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// Builds and writes the requested squares. Throws Impossible if there is no such square.
void BuildSquares(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
