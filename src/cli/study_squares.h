#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// Reads squares and writes what each of them is. False when one could not be read or has gaps, of
/// which it tells. Throws Impossible where there is nothing to read.
bool StudySquares(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
