#include "app/play/board_state.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "app/board/line.h"
#include "app/board/numbers.h"

namespace numorra {
namespace {

struct Tally {
  int Gaps = 0;
  int RightLines = 0;
  int Repeated = 0;        ///< numbers that occur more than once
  bool Untouched = false;  ///< every cell holds the base value
};

Tally Count(const Board& board) {
  const int n = board.GridSize;
  Tally tally{.Untouched = true};
  CellTable cells;
  std::vector<double> numbers;
  ForEachCell(n, [&](int r, int c) {
    const Grid::Cell& cell = board.grid.At(r, c);
    if (cell.IsGap()) ++tally.Gaps;
    const bool typed =
        board.Typing() && r == board.grid.CurrentRow() && c == board.grid.CurrentColumn();
    cells(r, c) = typed ? board.BoardValues(r, c) : Val(cell.Text);
    if (cells(r, c) != board.BaseValue) tally.Untouched = false;
    numbers.push_back(cells(r, c));
  });
  if (board.TotalsJudged) tally.Untouched = board.UntouchedBase;
  std::sort(numbers.begin(), numbers.end());
  for (auto number = numbers.begin(); number != numbers.end();) {
    const auto next = std::upper_bound(number, numbers.end(), *number);
    if (next - number > 1) ++tally.Repeated;
    number = next;
  }
  ComputeTotals(cells, n);
  const auto judge = [&](int row, int column) {
    const bool right = board.TotalsJudged ? board.grid.VerdictOf(row, column) == Verdict::Right
                                          : cells(row, column) == board.TargetTotal;
    tally.RightLines += right ? 1 : 0;
  };
  for (int line = 1; line <= n; ++line) {
    judge(line, 0);
    judge(0, line);
  }
  judge(0, 0);
  judge(0, n + 1);
  return tally;
}

/// The line whose total stands in the frame's cell (row, column); nothing for other cells.
std::optional<Line> LineOfTotal(int row, int column, int n) {
  const int last = n + 1;
  if (row == 0 && column == 0) return Line{Line::Falling, 0};
  if ((row == 0 && column == last) || (row == last && column == 0)) {
    return Line{Line::Rising, n - 1};
  }
  if (row == 0 && column <= n) return Line{Line::Column, column - 1};
  if (column == 0 && row <= n) return Line{Line::Row, row - 1};
  return std::nullopt;
}

std::string Counted(int count, const char* one, const char* more) {
  return std::to_string(count) + " " + (count == 1 ? one : more);
}

std::string Progress(const Tally& tally, int lines) {
  if (tally.Gaps > 0) return Counted(tally.Gaps, "cell to fill", "cells to fill");
  if (tally.Untouched) return "all cells are still equal";
  if (tally.RightLines < lines) {
    return std::to_string(tally.RightLines) + " of " + std::to_string(lines) + " lines right";
  }
  if (tally.Repeated == 0) return "magic";
  return "magic, " + Counted(tally.Repeated, "number", "numbers") + " more than once";
}

}  // namespace

std::string StateHead(int order, double target) {
  const std::string size = std::to_string(order);
  return size + " x " + size + ", sum " + Decimal(target) + ": ";
}

std::string StateOf(const Board& board) {
  if (!board.Shown()) return {};
  const int lines = 2 * board.GridSize + 2;
  const Tally tally = Count(board);
  std::string state = StateHead(board.GridSize, board.TargetTotal) + Progress(tally, lines);
  if (tally.Gaps > 0 && board.HasGivens()) {
    state += board.Asked == Rules::Positive
                 ? ", any whole numbers"
                 : ", 1 to " + std::to_string(board.GridSize * board.GridSize) + " each once";
  }
  if (board.Typing()) state += ", Enter checks";
  if (!board.TotalsChecked) state += ", F9 to play";
  return state;
}

std::string TipOfTotal(const Board& board, int row, int column) {
  const int n = board.GridSize;
  const auto line = LineOfTotal(row, column, n);
  if (!board.Shown() || !line) return {};
  const std::string total = board.grid.Text(row, column);
  std::string tip = NameOf(*line, n) + " adds up to " + total;
  if (board.QuietTotals && board.HasGaps()) return tip;
  const double off = AsShown(Val(total) - board.TargetTotal);
  if (off == 0) return tip + ", as it should";
  return tip + ", " + Decimal(std::abs(off)) + (off < 0 ? " less" : " more") + " than " +
         Decimal(board.TargetTotal);
}

}  // namespace numorra
