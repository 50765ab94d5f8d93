#include "puzzle/puzzle.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "app/board/numbers.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Why the puzzle cannot hold a number.
AgainstRules NotAllowed(double number, Place place, const Puzzle& puzzle) {
  const std::string written = Written(number);
  const std::string cell = NameOf(place);
  if (puzzle.Asked == Rules::Normal || puzzle.LimitToNine) {
    return {Say("%1 in %2 is not one of the numbers 1 to %3", written, cell, puzzle.Most()), place};
  }
  if (number < 1 || number != std::floor(number)) {
    return {Say("%1 in %2 is not a whole number of 1 or more", written, cell), place};
  }
  return {
      Say("%1 in %2 is more than the sum leaves for one cell, %3", written, cell, puzzle.Most()),
      place};
}

/// A number that is in two cells: if only one of them is a given, the other is to blame.
AgainstRules Twice(const StoredSquare& square, int first, int second) {
  if (square.IsGiven(second) && !square.IsGiven(first)) std::swap(first, second);
  const Place place = square.Cells.PlaceOf(second);
  return {Say("%1 in %2 is also in %3", Written(*square.Cells[second]), NameOf(place),
              NameOf(square.Cells.PlaceOf(first))),
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
  if (target != std::floor(target) || target < square.Order() ||
      target > static_cast<double>(Puzzle::kMostTarget)) {
    return AgainstRules{
        Say("the sum %1 is not possible here with whole numbers of 1 or more", Written(target))};
  }
  Puzzle puzzle{Square<std::int64_t>(square.Order()), static_cast<std::int64_t>(target),
                square.Asked, limitToNine};
  if (square.Asked == Rules::Normal && puzzle.Target != NormalTotal(square.Order())) {
    return AgainstRules{Say("the sum %1 does not fit the numbers 1 to %2, whose lines add up to %3",
                            Written(target), puzzle.Most(), NormalTotal(square.Order()))};
  }
  std::map<double, int> seen;
  for (int cell = 0; cell < square.Cells.Size(); ++cell) {
    const std::optional<double> number = square.Cells[cell];
    if (!number) continue;
    if (*number < 1 || *number > static_cast<double>(puzzle.Most()) ||
        *number != std::floor(*number)) {
      return NotAllowed(*number, puzzle.Cells.PlaceOf(cell), puzzle);
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
