#pragma once

#include <array>
#include <optional>
#include <vector>

#include "app/board/random.h"
#include "app/board/square.h"
#include "study/facts.h"

namespace numorra {

/// A normal magic square of order 4, in reading order.
using Square4 = std::array<int, 16>;

/// The 880 normal magic squares of order 4, each in its standard form, in reading order. Frénicle
/// counted them in 1693. A search finds them on first use: it chooses seven cells, and the other
/// nine follow.
const std::vector<Square4>& SquaresOfOrder4();

/// The census number, from 1, of a standard form of order 4; nothing for other squares.
std::optional<int> CensusNumber(const Square<double>& standardForm);

/// One of the 7,040 squares, images counted separately, uniform at random.
Square<double> AnySquareOfOrder4(Random& random);

/// One of `squares` and their images, uniform at random.
Square<double> AnyImageOf(const std::vector<Square4>& squares, Random& random);

/// Those of the 880 for which the term holds.
std::vector<Square4> SquaresOfOrder4That(Judgement (*judge)(const Facts&));

/// One of the squares for which the term holds, uniform at random.
template <Judgement (*Judge)(const Facts&)>
Square<double> AnySquareOfOrder4(Random& random) {
  static const std::vector<Square4> squares = SquaresOfOrder4That(Judge);
  return AnyImageOf(squares, random);
}

}  // namespace numorra
