#pragma once

#include <cstdint>
#include <functional>

#include "app/board/cell_table.h"
#include "app/board/grid.h"
#include "app/board/rules.h"
#include "app/board/square.h"

namespace numorra {

/// Which squares the program is asked for: the numbers 1 to n x n, or any numbers with a total.
enum Mode : std::int16_t { ModeVariable = 0, ModeNormal = 1 };

/// The board that every command shares: an n x n block of numbers in a grid of n + 2 lines each
/// way, with its totals around it.
///
///     main diagonal | column totals        | other diagonal
///     --------------+----------------------+---------------
///     row totals    | cells (1..n, 1..n)   | empty
///     --------------+----------------------+---------------
///     other diagonal| empty                |
///
/// `BoardValues` is the working copy that generators and transforms change; `ShowBoard` writes it
/// into the grid, and the totals check reads the grid back into it.
struct Board {
  Grid grid;

  std::int16_t GridSize = 0;   ///< n: the order of the board in the grid
  std::int16_t BaseValue = 0;  ///< the cell value of the untouched base board
  Mode SolveMode = ModeNormal;
  Rules Asked = Rules::Normal;  ///< what may stand in the board in the grid
  CellTable BoardValues;
  CellTable CellFlags;     ///< one number a cell, for the generators' patterns
  double TargetTotal = 0;  ///< what every line must add up to

  bool BoardBusy = false;      ///< while SetupBoard runs
  bool TotalsChecked = false;  ///< false before the first totals check and while one runs
  bool CheckRunning = false;   ///< while a totals check runs
  bool UntouchedBase = false;  ///< the last check found every cell at BaseValue
  bool NewEntry = false;       ///< the next digit typed replaces the current cell's text
  bool TotalsJudged = false;   ///< a check has judged the totals of the board in the grid
  bool WinTold = false;        ///< the player has been congratulated on the board as it stands

  std::int16_t MarkedRow = -1;  ///< the cell, row or column remembered for a swap; -1 = none
  std::int16_t MarkedCol = -1;

  /// Whether a drawing covers the board. The grid is invisible while one does.
  bool OverlayShown = false;

  /// Raised whenever a command shows the board, or a drawing of it, seen before or not.
  std::function<void()> OnShown;

  /// Whether a board of GridSize stands in the grid.
  bool Shown() const { return GridSize > 0 && grid.Rows() == GridSize + 2; }

  /// Whether any cell is a gap, or given.
  bool HasGaps() const;
  bool HasGivens() const;

  /// Whether the player has typed into the current cell and not yet left it.
  bool Typing() const { return Shown() && TotalsChecked && !NewEntry; }

  /// Whether the main diagonal's total is other than 0: what can be shaded and drawn.
  bool HasTotal() const;

  /// Lets a drawing cover the grid, or shows the grid again.
  void SetOverlayShown(bool shown);

  /// Makes the grid that of an empty board of GridSize: empty value cells in their colours, the
  /// frame in the window's own; forgets the marks.
  void SetupBoard();

  /// Fills the value block: every cell with `value` in the Variable mode, 1..n x n in reading order
  /// in the Normal mode. Clears the block's CellFlags.
  void FillBoard(double value);

  /// Stores every total of the value block around it: rows in (r, 0), columns in (0, c), the main
  /// diagonal in (0, 0), the other one in (0, n + 1) and (n + 1, 0).
  void ComputeTotals();

  /// Computes the totals and writes values and totals into the grid, which takes a drawing away;
  /// changes no colours.
  void ShowBoard();

  /// Computes the totals and writes them into the grid; changes no colours.
  void ShowTotals();

  /// Puts a new board of order `order` with the values of `square` in the grid and in sight, its
  /// totals uncoloured, its first value cell current.
  void ShowSquare(std::int16_t order, double target, Rules rules, const CellTable& square);

  /// Judges every total but (0, 0) wrong.
  void MarkAllTotalsWrong();

  /// Empties the grid and gives it the shape for GridSize, the bottom row in the window's colour.
  void ResizeBoard();

  /// Makes (row, column) current again after a command, or the first value cell when that lies in
  /// the frame. What was typed there counts as entered.
  void ReturnTo(int row, int column);

  /// Reads the value block of the grid into BoardValues: what a command works on is what is shown.
  void ReadGrid();
};

/// Calls visit(row, column) for every cell of an n x n value block in reading order.
template <class Visit>
void ForEachCell(int order, Visit visit) {
  for (int row = 1; row <= order; ++row) {
    for (int column = 1; column <= order; ++column)
      visit(row, column);
  }
}

/// Stores the totals of the n x n block of `cells` around it, as Board::ComputeTotals does.
void ComputeTotals(CellTable& cells, int order);

/// The n x n block of `cells`, and a table with the square in its block.
Square<double> SquareOf(const CellTable& cells, int order);
CellTable TableOf(const Square<double>& square);

}  // namespace numorra
