#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// Reads squares and writes what each of them is. Reports squares that cannot be read or have gaps;
/// returns false if there were any. Throws Impossible if there is nothing to read.
bool StudySquares(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
