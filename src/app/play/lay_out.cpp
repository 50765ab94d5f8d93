#include "app/play/lay_out.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "app/board/decimal_sum.h"
#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/position.h"

namespace numorra {
namespace {

using Cells = std::vector<std::optional<double>>;

/// The sum of the first line of those that cellAt(line, place) gives which has no gap.
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

struct Aim {
  double Target;
  Rules Asked;
};

Aim AimOf(const StoredSquare& square, const SquareBoxes& boxes) {
  if (square.Total) return {AsShown(*square.Total), square.Asked};
  const bool gaps =
      std::any_of(square.Cells.begin(), square.Cells.end(), [](const auto& cell) { return !cell; });
  if (gaps && MayBeNormal(square)) {
    const double n = square.Order;
    return {n * (n * n + 1) / 2, Rules::Normal};
  }
  if (const auto sum = FirstFullLine(square)) return {*sum, square.Asked};
  return {AsShown(Val(boxes.Sum())), square.Asked};
}

}  // namespace

StoredSquare StoredSquareOf(const Board& board) {
  const Position position = PositionOf(board);
  StoredSquare square{.Order = position.Order,
                      .Givens = position.Givens,
                      .Total = position.Target,
                      .Asked = position.Asked};
  for (const std::string& text : position.Texts) {
    square.Cells.push_back(text.empty() ? std::nullopt : std::optional(Val(text)));
  }
  return square;
}

void LayOut(Board& board, SquareBoxes& boxes, const StoredSquare& square) {
  constexpr double kHighestBase = std::numeric_limits<std::int16_t>::max();
  const Aim aim = AimOf(square, boxes);
  Position position{.Order = static_cast<std::int16_t>(square.Order),
                    .Target = aim.Target,
                    .Base = ToInt16(std::min(kHighestBase, BaseOf(aim.Target, square.Order))),
                    .Asked = aim.Asked,
                    .Givens = square.Givens,
                    .Checked = true,
                    .Judged = true,
                    .Row = 1,
                    .Column = 1};
  for (const auto& cell : square.Cells)
    position.Texts.push_back(cell ? Decimal(*cell) : "");
  board.SolveMode = ModeVariable;
  boxes.SetSize(Decimal(square.Order));
  boxes.SetSum(Decimal(aim.Target));
  Restore(board, Position());  // a new board: no shade, mark or drawing of the old one stays
  Restore(board, position);
}

}  // namespace numorra
