#pragma once

#include "cli/count_request.h"
#include "cli/streams.h"

namespace numorra {

/// Counts the squares of the request, or a slice of them, or estimates their number, or adds up the
/// slices in files, and writes the result on one line. Throws Impossible if they are too many, or
/// if a file cannot be read or does not fit the others.
void CountSquares(const CountRequest& request, const Streams& streams);

}  // namespace numorra
