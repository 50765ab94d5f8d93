#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// Builds and writes as many squares as are asked for. Throws Impossible for what no square meets.
void BuildSquares(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
