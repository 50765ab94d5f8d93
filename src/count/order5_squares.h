#pragma once

#include <functional>

#include "app/ports/yielding.h"
#include "count/count_wish.h"

namespace numorra {

/// Calls `visit` with every magic square of order 5 that a wish without a kind asks for, until it
/// returns false. The diagonals are filled as for a count (order5_diagonals.h), and so are the sets
/// of the rings' numbers found; the few rings of two complementary sets are then put together, and
/// the square is rearranged in all ways that keep the diagonals. Yields after every diagonal set.
void ForEachSquareOfOrder5(const CountWish& wish, Yielding& yielding,
                           const std::function<bool(const Square<int>&)>& visit);

}  // namespace numorra
