#pragma once

#include "cli/count_request.h"
#include "cli/streams.h"
#include "count/count_wish.h"

namespace numorra {

/// The squares that a command line asks for, with the given cells from its file. Throws Impossible
/// if the file does not hold one square of the order, with numbers of the normal rules.
CountWish CountWishOf(const CountRequest& request, const Streams& streams);

}  // namespace numorra
