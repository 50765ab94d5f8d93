#include "puzzle/puzzle.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "app/board/numbers.h"

namespace numorra {
namespace {

/// What a number is that the puzzle cannot hold.
std::string WhatIs(double number, const Puzzle& puzzle) {
  if (puzzle.Asked == Rules::Normal || puzzle.LimitToNine) {
    return "none of the numbers 1 to " + std::to_string(puzzle.Most());
  }
  if (number < 1 || number != std::floor(number)) return "no whole number of 1 or more";
  return "more than the sum leaves for one cell, " + std::to_string(puzzle.Most());
}

/// A number that stands in two cells: the one to blame is no given where the other is.
AgainstRules Twice(const StoredSquare& square, int first, int second) {
  if (square.IsGiven(second) && !square.IsGiven(first)) std::swap(first, second);
  const Place place = square.Cells.PlaceOf(second);
  return {Decimal(*square.Cells[second]) + " in " + NameOf(place) + " stands in " +
              NameOf(square.Cells.PlaceOf(first)) + " too",
          place};
}

}  // namespace

std::int64_t Puzzle::Most() const {
  if (Asked == Rules::Normal) return Cells.Size();
  const std::int64_t fits = std::max<std::int64_t>(1, Target - Order() + 1);
  constexpr std::int64_t kNine = 9;
  return LimitToNine ? std::min(kNine, fits) : fits;
}

int Puzzle::Gaps() const {
  return static_cast<int>(std::count(Cells.begin(), Cells.end(), 0));
}

std::variant<Puzzle, AgainstRules> PuzzleOf(const StoredSquare& square, bool limitToNine) {
  const double target = square.Total.value_or(static_cast<double>(NormalTotal(square.Order())));
  const std::string sum = "the sum " + Decimal(target);
  if (target != std::floor(target) || target < square.Order() ||
      target > static_cast<double>(Puzzle::kMostTarget)) {
    return AgainstRules{sum + " is none that whole numbers of 1 or more make here"};
  }
  Puzzle puzzle{Square<std::int64_t>(square.Order()), static_cast<std::int64_t>(target),
                square.Asked, limitToNine};
  if (square.Asked == Rules::Normal && puzzle.Target != NormalTotal(square.Order())) {
    return AgainstRules{sum + " is not that of the numbers 1 to " + std::to_string(puzzle.Most()) +
                        ", which is " + std::to_string(NormalTotal(square.Order()))};
  }
  std::map<double, int> seen;
  for (int cell = 0; cell < square.Cells.Size(); ++cell) {
    const std::optional<double> number = square.Cells[cell];
    if (!number) continue;
    if (*number < 1 || *number > static_cast<double>(puzzle.Most()) ||
        *number != std::floor(*number)) {
      const Place place = puzzle.Cells.PlaceOf(cell);
      return AgainstRules{
          Decimal(*number) + " in " + NameOf(place) + " is " + WhatIs(*number, puzzle), place};
    }
    if (square.Asked == Rules::Normal && !seen.emplace(*number, cell).second) {
      return Twice(square, seen[*number], cell);
    }
    puzzle.Cells[cell] = static_cast<std::int64_t>(*number);
  }
  return puzzle;
}

StoredSquare StoredSquareOf(const Puzzle& puzzle, bool givens) {
  const auto filled = [&](int cell) { return puzzle.Cells[cell] != 0; };
  const auto shown = [&](int cell) {
    return filled(cell) ? std::optional(static_cast<double>(puzzle.Cells[cell])) : std::nullopt;
  };
  return {.Cells = SquareOf(puzzle.Order(), shown),
          .Givens = givens ? SquareOf(puzzle.Order(), filled) : Square<bool>(),
          .Total = static_cast<double>(puzzle.Target),
          .Asked = puzzle.Asked};
}

}  // namespace numorra
