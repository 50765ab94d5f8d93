#pragma once

#include "puzzle/fresh_square.h"
#include "puzzle/making.h"

namespace numorra {

/// A puzzle from a fresh square. Some squares have no puzzle of the wanted grade or with so few
/// clues, so up to 20 squares are tried; if none gives the grade, the hardest puzzle found is
/// returned. Squares of any total have more small numbers from the medium grade on.
std::variant<MadePuzzle, CannotMake> MakeFreshPuzzle(const SquareWish& square,
                                                     const PuzzleWish& wish, Random& random,
                                                     Yielding& yielding);

}  // namespace numorra
