#pragma once

#include <array>
#include <optional>
#include <vector>

#include "app/board/square.h"

namespace numorra {

/// A normal magic square of order 4, in reading order.
using Square4 = std::array<int, 16>;

/// The 880 normal magic squares of order 4, each in its standard form, in reading order. Frénicle
/// counted them in 1693. They are searched for when they are first asked for: seven cells are
/// chosen, the other nine follow from them.
const std::vector<Square4>& SquaresOfOrder4();

/// The place, from 1, of a standard form of order 4 among them; nothing for other squares.
std::optional<int> CensusNumber(const Square<double>& standardForm);

}  // namespace numorra
