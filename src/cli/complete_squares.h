#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// The result for several boards: the worst one counts.
enum class Completion : std::uint8_t { Completed, Unreadable, Impossible, Unsettled };

/// Reads boards, fills their gaps and writes the results. Throws Impossible if there is nothing to
/// read.
Completion CompleteSquares(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
