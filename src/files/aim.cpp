#include "files/aim.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "app/board/decimal_sum.h"
#include "app/board/line.h"
#include "app/board/numbers.h"
#include "app/board/orders.h"

namespace numorra {
namespace {

bool MayBeNormal(const StoredSquare& square) {
  std::set<double> seen;
  return std::all_of(square.Cells.begin(), square.Cells.end(), [&](const auto& cell) {
    return !cell || (*cell >= 1 && *cell <= square.Cells.Size() && *cell == std::floor(*cell) &&
                     seen.insert(*cell).second);
  });
}

/// The sum of the first line without a gap.
std::optional<double> FirstFullSum(const StoredCells& cells) {
  for (const Line line : MagicLines(cells.Order())) {
    DecimalSum sum;
    bool full = true;
    for (int i = 0; i < cells.Order(); ++i) {
      const std::optional<double> cell = cells[line.Cell(i, cells.Order())];
      full = full && cell;
      sum.Add(cell.value_or(0));
    }
    if (full) return sum.Total();
  }
  return std::nullopt;
}

}  // namespace

std::optional<Aim> AimOf(const StoredSquare& square) {
  if (square.Total) return Aim{AsShown(*square.Total), square.Asked};
  if (square.HasGaps() && MayBeNormal(square)) {
    return Aim{static_cast<double>(NormalTotal(square.Order())), Rules::Normal};
  }
  const auto sum = FirstFullSum(square.Cells);
  return sum ? std::optional(Aim{*sum, square.Asked}) : std::nullopt;
}

}  // namespace numorra
