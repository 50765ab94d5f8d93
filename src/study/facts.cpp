#include "study/facts.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "app/board/numbers.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The cells in ascending order of their numbers. Whole numbers that lie close together, as on
/// nearly every board, are sorted by counting, which is several times as fast.
std::vector<int> CellsByNumber(const NumberSquare& square) {
  const auto& numbers = square.Numbers();
  std::vector<int> cells(static_cast<std::size_t>(numbers.Size()));
  const auto [least, most] = std::minmax_element(numbers.begin(), numbers.end());
  const double lowest = *least;
  const double span = *most - lowest;
  constexpr double kNear = 16;
  if (square.One() == 1 && square.HasUnits() && span <= kNear * static_cast<double>(cells.size())) {
    const auto slot = [&](int cell) { return static_cast<std::size_t>(numbers[cell] - lowest); };
    std::vector<std::size_t> ends(static_cast<std::size_t>(span) + 2);
    for (int cell = 0; cell < numbers.Size(); ++cell)
      ++ends[slot(cell) + 1];
    std::partial_sum(ends.begin(), ends.end(), ends.begin());
    for (int cell = 0; cell < numbers.Size(); ++cell)
      cells[ends[slot(cell)]++] = cell;
    return cells;
  }
  std::iota(cells.begin(), cells.end(), 0);
  std::stable_sort(cells.begin(), cells.end(),
                   [&](int a, int b) { return numbers[a] < numbers[b]; });
  return cells;
}

}  // namespace

Facts::Facts(NumberSquare square)
    : Square(std::move(square)), Lines(MagicLines(N())), Ascending(CellsByNumber(Square)) {
  if (!Square.HasUnits()) return;
  Sums.reserve(Lines.size());
  for (const Line line : Lines)
    Sums.push_back(SumOf(line, Square));
  for (const std::int64_t sum : Sums) {
    const auto lines = static_cast<int>(std::count(Sums.begin(), Sums.end(), sum));
    if (lines > LinesOfTotal) {
      Total = sum;
      LinesOfTotal = lines;
    }
  }
}

std::string Facts::NumberIn(int cell) const {
  return Written(Square.Numbers()[cell]);
}

std::string Facts::NumberAndPlace(int cell) const {
  // Translators: "7 in row 1, column 2"
  return SayIn("number and cell", "%1 in %2", NumberIn(cell), NameOf(Square.PlaceOf(cell)));
}

}  // namespace numorra
