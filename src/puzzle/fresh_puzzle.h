#pragma once

#include "puzzle/fresh_square.h"
#include "puzzle/making.h"

namespace numorra {

/// A puzzle from a fresh square. Some squares have no puzzle of the wanted grade, so several
/// squares are tried; if none gives it, the hardest puzzle found is returned.
std::variant<MadePuzzle, CannotMake> MakeFreshPuzzle(const SquareWish& square,
                                                     const PuzzleWish& wish, Random& random,
                                                     Yielding& yielding);

}  // namespace numorra
