#include "files/aim.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "app/board/decimal_sum.h"
#include "app/board/numbers.h"
#include "app/board/orders.h"

namespace numorra {
namespace {

/// The sum of the first line without a gap, with cells from cellAt(line, place).
template <class CellAt>
std::optional<double> FirstFullSum(int lines, int places, CellAt cellAt) {
  for (int line = 0; line < lines; ++line) {
    DecimalSum sum;
    bool full = true;
    for (int place = 0; place < places; ++place) {
      const std::optional<double> cell = cellAt(line, place);
      full = full && cell;
      sum.Add(cell.value_or(0));
    }
    if (full) return sum.Total();
  }
  return std::nullopt;
}

bool MayBeNormal(const StoredSquare& square) {
  std::set<double> seen;
  return std::all_of(square.Cells.begin(), square.Cells.end(), [&](const auto& cell) {
    return !cell || (*cell >= 1 && *cell <= square.Order * square.Order &&
                     *cell == std::floor(*cell) && seen.insert(*cell).second);
  });
}

/// The rows, then the columns, then the diagonals.
std::optional<double> FirstFullLine(const StoredSquare& square) {
  const int n = square.Order;
  const auto at = [&](int row, int column) {
    return square.Cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(n) +
                        static_cast<std::size_t>(column)];
  };
  if (auto sum = FirstFullSum(n, n, at)) return sum;
  if (auto sum = FirstFullSum(n, n, [&](int column, int row) { return at(row, column); })) {
    return sum;
  }
  return FirstFullSum(2, n,
                      [&](int diagonal, int i) { return at(i, diagonal == 0 ? i : n - 1 - i); });
}

}  // namespace

std::optional<Aim> AimOf(const StoredSquare& square) {
  if (square.Total) return Aim{AsShown(*square.Total), square.Asked};
  const bool gaps =
      std::any_of(square.Cells.begin(), square.Cells.end(), [](const auto& cell) { return !cell; });
  if (gaps && MayBeNormal(square)) {
    return Aim{static_cast<double>(NormalTotal(square.Order)), Rules::Normal};
  }
  const auto sum = FirstFullLine(square);
  return sum ? std::optional(Aim{*sum, square.Asked}) : std::nullopt;
}

}  // namespace numorra
