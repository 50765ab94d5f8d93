#pragma once

#include "puzzle/fresh_square.h"
#include "puzzle/making.h"

namespace numorra {

/// A puzzle from a fresh square. Not every square has a puzzle of every grade, so several are drawn
/// until one has the grade that is wished for; else the hardest puzzle that was found is returned.
std::variant<MadePuzzle, CannotMake> MakeFreshPuzzle(const SquareWish& square,
                                                     const PuzzleWish& wish, Random& random,
                                                     Yielding& yielding);

}  // namespace numorra
