#pragma once

#include "cli/count_request.h"
#include "cli/streams.h"

namespace numorra {

/// Writes all squares of the request, each as soon as it is found; stops when nothing more can be
/// written. Throws Impossible if there are none, and for given cells that cannot be read or break
/// the rules.
void ListSquares(const CountRequest& request, const Streams& streams);

}  // namespace numorra
