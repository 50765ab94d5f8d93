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
/// counted them in 1693. They are searched for when they are first asked for: seven cells are
/// chosen, the other nine follow from them.
const std::vector<Square4>& SquaresOfOrder4();

/// The place, from 1, of a standard form of order 4 among them; nothing for other squares.
std::optional<int> CensusNumber(const Square<double>& standardForm);

/// One of the 7,040 squares, images told apart, each as likely as the others.
Square<double> AnySquareOfOrder4(Random& random);

/// The same of `squares` and their images.
Square<double> AnyImageOf(const std::vector<Square4>& squares, Random& random);

/// Those of the 880 of which the term holds.
std::vector<Square4> SquaresOfOrder4That(Judgement (*judge)(const Facts&));

/// One of the squares of which the term holds, each as likely as the others.
template <Judgement (*Judge)(const Facts&)>
Square<double> AnySquareOfOrder4(Random& random) {
  static const std::vector<Square4> squares = SquaresOfOrder4That(Judge);
  return AnyImageOf(squares, random);
}

}  // namespace numorra
