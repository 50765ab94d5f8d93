#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// What has come of the boards that were to be completed; the worst counts for several.
enum class Completion : std::uint8_t { Completed, Unreadable, Impossible, Unsettled };

/// Reads boards, fills their gaps and writes what came of it. Throws Impossible where there is
/// nothing to read.
Completion CompleteSquares(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
