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
/// Magic squares of order 5 without more conditions than given cells are counted by their diagonals
/// (order5_count.h), unless there are so few that they can be found quickly. All others are found
/// one by one. Both ways are exact.
std::variant<std::int64_t, std::string> CountAll(const CountWish& wish, Yielding& yielding);

}  // namespace numorra
