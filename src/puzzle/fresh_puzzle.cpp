#include "puzzle/fresh_puzzle.h"

#include "words/say.h"

namespace numorra {

std::variant<MadePuzzle, CannotMake> MakeFreshPuzzle(const SquareWish& square,
                                                     const PuzzleWish& wish, Random& random,
                                                     Yielding& yielding) {
  constexpr int kSquares = 20;
  constexpr int kOrders = 5;  // of removing numbers from a square
  SquareWish suitable = square;
  suitable.ManySmallNumbers = wish.Wanted > Grade::Easy;
  PuzzleMaker maker(wish, random, yielding);
  for (int drawn = 0; drawn < kSquares; ++drawn) {
    const auto full = FreshSquare(suitable, random, yielding);
    if (!full) return CannotMake{Say("no square of this size and sum was found")};
    if (maker.Try(*full, kOrders)) break;
  }
  return maker.Result();
}

}  // namespace numorra
