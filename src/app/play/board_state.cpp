#include "app/play/board_state.h"

#include <algorithm>
#include <vector>

#include "app/board/numbers.h"

namespace numorra {
namespace {

struct Tally {
  int Gaps = 0;
  int RightLines = 0;
  int Repeated = 0;  ///< numbers that stand more than once
  bool AllBase = true;
};

Tally Count(const Board& board) {
  const int n = board.GridSize;
  Tally tally;
  CellTable cells;
  std::vector<double> numbers;
  ForEachCell(n, [&](int r, int c) {
    const std::string& text = board.grid.Text(r, c);
    if (text.empty()) ++tally.Gaps;
    cells(r, c) = Val(text);
    if (cells(r, c) != board.BaseValue) tally.AllBase = false;
    numbers.push_back(cells(r, c));
  });
  std::sort(numbers.begin(), numbers.end());
  for (auto number = numbers.begin(); number != numbers.end();) {
    const auto next = std::upper_bound(number, numbers.end(), *number);
    if (next - number > 1) ++tally.Repeated;
    number = next;
  }
  ComputeTotals(cells, n);
  const auto judge = [&](double total) { tally.RightLines += total == board.TargetTotal ? 1 : 0; };
  for (int line = 1; line <= n; ++line) {
    judge(cells(line, 0));
    judge(cells(0, line));
  }
  judge(cells(0, 0));
  judge(cells(0, n + 1));
  return tally;
}

std::string Counted(int count, const char* one, const char* more) {
  return std::to_string(count) + " " + (count == 1 ? one : more);
}

std::string Progress(const Tally& tally, int lines) {
  if (tally.Gaps > 0) return Counted(tally.Gaps, "cell to fill", "cells to fill");
  if (tally.RightLines < lines) {
    return std::to_string(tally.RightLines) + " of " + std::to_string(lines) + " lines right";
  }
  if (tally.AllBase) return "all cells are still equal";
  if (tally.Repeated == 0) return "magic";
  return "magic, " + Counted(tally.Repeated, "number", "numbers") + " more than once";
}

}  // namespace

std::string StateOf(const Board& board) {
  if (!board.Shown()) return {};
  const std::string order = std::to_string(board.GridSize);
  const int lines = 2 * board.GridSize + 2;
  std::string state = order + " x " + order + ", sum " + Decimal(board.TargetTotal) + ": " +
                      Progress(Count(board), lines);
  if (!board.TotalsChecked) state += ", F9 to play";
  return state;
}

}  // namespace numorra
