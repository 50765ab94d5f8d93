#include "cli/count_conditions.h"

#include "cli/read_squares.h"
#include "count/fill_plan.h"
#include "puzzle/puzzle.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The one square of the file.
Square<int> GivensIn(const std::string& file, int order, const Streams& streams) {
  Square<int> givens;
  const bool allRead = ReadSquares(file, streams, [&](StoredSquare square) {
    if (!givens.IsEmpty()) throw Impossible{Say("there is more than one square with given cells")};
    if (order != 0 && square.Order() != order) {
      throw Impossible{
          Say("the square with given cells is of order %1, not %2", square.Order(), order)};
    }
    square.Asked = Rules::Normal;
    square.Total.reset();
    const auto puzzle = PuzzleOf(square);
    if (const auto* against = std::get_if<AgainstRules>(&puzzle)) throw Impossible{against->Why};
    givens = Square<int>(std::get<Puzzle>(puzzle).Cells);
  });
  if (!allRead) throw Impossible{Say("the square with given cells cannot be read")};
  return givens;
}

}  // namespace

CountWish CountWishOf(const CountRequest& request, const Streams& streams) {
  CountWish wish{.Givens = request.Given ? GivensIn(*request.Given, request.Size, streams)
                                         : Square<int>(request.Size),
                 .Kind = request.Kind,
                 .SemiMagic = request.SemiMagic,
                 .Terms = request.Terms,
                 .AllImages = request.AllImages};
  const auto gaps = std::count(wish.Givens.begin(), wish.Givens.end(), 0);
  if (gaps > FillPlan::kMostGaps) {
    throw Impossible{
        Say("a board with %1 gaps has too many squares; at most %2 gaps can be searched", gaps,
            FillPlan::kMostGaps)};
  }
  return wish;
}

}  // namespace numorra
