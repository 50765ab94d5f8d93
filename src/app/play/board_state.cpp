#include "app/play/board_state.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "app/board/line.h"
#include "app/board/numbers.h"
#include "words/say.h"

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

std::string Progress(const Tally& tally, int lines) {
  if (tally.Gaps > 0) return SayCounted("%1 cell to fill", "%1 cells to fill", tally.Gaps);
  if (tally.Untouched) return Say("all cells are still equal");
  if (tally.RightLines < lines) return Say("%1 of %2 lines right", tally.RightLines, lines);
  // Translators: what is said of a solved board: "4 x 4, sum 34: magic".
  if (tally.Repeated == 0) return Say("magic");
  return SayCounted("magic, %1 number more than once", "magic, %1 numbers more than once",
                    tally.Repeated);
}

}  // namespace

std::string StateText(int order, double target, const std::string& progress) {
  // Translators: a board's size, its total, and how far it is: "4 x 4, sum 34: 5 cells to fill".
  return Say("%1 x %1, sum %2: %3", order, Written(target), progress);
}

std::string StateOf(const Board& board) {
  if (!board.Shown()) return {};
  const int lines = 2 * board.GridSize + 2;
  const Tally tally = Count(board);
  std::string state = StateText(board.GridSize, board.TargetTotal, Progress(tally, lines));
  const auto add = [&state](const std::string& remark) { state = Say("%1, %2", state, remark); };
  if (tally.Gaps > 0 && board.HasGivens()) {
    // Translators: the numbers that fill a board.
    add(board.Asked == Rules::Positive ? Say("any whole numbers")
                                       : Say("1 to %1 each once", board.GridSize * board.GridSize));
  }
  // Translators: what a key does: the Enter key checks the board, the key F9 begins to play on it.
  if (board.Typing()) add(Say("Enter checks"));
  if (!board.TotalsChecked) add(Say("F9 to play"));
  return state;
}

std::string TipOfTotal(const Board& board, int row, int column) {
  const int n = board.GridSize;
  const auto line = LineOfTotal(row, column, n);
  if (!board.Shown() || !line) return {};
  const std::string total = board.grid.Text(row, column);
  const std::string name = NameOf(*line, n);
  const std::string sum = Written(total);
  if (board.QuietTotals && board.HasGaps()) return Say("%1 adds up to %2", name, sum);
  const double off = AsShown(Val(total) - board.TargetTotal);
  if (off == 0) return Say("%1 adds up to %2, as it should", name, sum);
  const std::string target = Written(board.TargetTotal);
  return off < 0 ? Say("%1 adds up to %2, %3 less than %4", name, sum, Written(-off), target)
                 : Say("%1 adds up to %2, %3 more than %4", name, sum, Written(off), target);
}

}  // namespace numorra
