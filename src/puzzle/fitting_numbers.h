#pragma once

#include <cstdint>
#include <vector>

#include "puzzle/puzzle.h"

namespace numorra {

/// What a player can write into a gap without solving anything: the numbers, ascending, that each
/// line through it can hold there, looked at alone. In the last gap of a line it is the rest; if
/// there is one other gap, the other number must be missing too; if there are more, the rest lies
/// between the smallest and the largest sum that the other gaps can have. Under the normal rules,
/// all numbers are different missing ones; under the positive rules, any whole numbers of 1 or
/// more, up to `most`.
std::vector<std::int64_t> FittingNumbers(const Puzzle& puzzle, int gap, std::int64_t most);

}  // namespace numorra
