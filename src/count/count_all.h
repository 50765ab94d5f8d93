#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "app/ports/yielding.h"
#include "count/count_wish.h"

namespace numorra {

/// The number of squares of a wish with at most FillPlan::kMostGaps gaps; or, in a sentence, that
/// they cannot be counted in a time that anyone would wait for.
///
/// A few random descents say how long a search of all squares would take. If that is long, and they
/// are magic squares of order 5 without more conditions than given cells, their diagonals are
/// counted instead (order5_count.h). Both ways are exact.
std::variant<std::int64_t, std::string> CountAll(const CountWish& wish, Yielding& yielding);

}  // namespace numorra
