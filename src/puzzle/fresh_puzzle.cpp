#include "puzzle/fresh_puzzle.h"

#include <utility>

namespace numorra {

std::variant<MadePuzzle, CannotMake> MakeFreshPuzzle(const SquareWish& square,
                                                     const PuzzleWish& wish, Random& random,
                                                     Yielding& yielding) {
  constexpr int kSquares = 5;
  std::optional<MadePuzzle> best;
  CannotMake why{"no square of this size and sum was found"};
  for (int drawn = 0; drawn < kSquares; ++drawn) {
    const auto full = FreshSquare(square, random, yielding);
    if (!full) break;
    auto made = MakePuzzle(*full, wish, random, yielding);
    if (auto* puzzle = std::get_if<MadePuzzle>(&made)) {
      if (puzzle->Needed == wish.Wanted) return *puzzle;
      if (!best || puzzle->Needed > best->Needed) best = std::move(*puzzle);
    } else {
      why = std::get<CannotMake>(made);
    }
  }
  if (best) return *best;
  return why;
}

}  // namespace numorra
