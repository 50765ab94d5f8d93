#pragma once

#include <cstdint>
#include <functional>

#include "app/board/cell_table.h"
#include "app/board/grid.h"
#include "app/board/rules.h"
#include "app/board/square.h"

namespace numorra {

/// The kind of square to build: the numbers 1 to n x n, or any numbers with a total.
enum Mode : std::int16_t { ModeVariable = 0, ModeNormal = 1 };

/// The board that all commands share: an n x n block of numbers, with its totals around it, in a
/// grid of (n + 2) x (n + 2) cells.
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
  std::int16_t BaseValue = 0;  ///< cell value of the untouched base board
  Mode SolveMode = ModeNormal;
  Rules Asked = Rules::Normal;  ///< rules of the board in the grid
  CellTable BoardValues;
  CellTable CellFlags;     ///< one number per cell, for the generators' patterns
  double TargetTotal = 0;  ///< required sum of every line

  bool BoardBusy = false;      ///< while SetupBoard runs
  bool TotalsChecked = false;  ///< false before the first totals check and while one runs
  bool CheckRunning = false;   ///< while a totals check runs
  bool UntouchedBase = false;  ///< at the last check, every cell was at BaseValue
  bool NewEntry = false;       ///< the next digit typed replaces the current cell's text
  bool TotalsJudged = false;   ///< a check has judged the totals in the grid
  bool QuietTotals = false;    ///< a board with gaps shows no verdicts
  bool WinTold = false;        ///< the player has been congratulated on this board

  std::int16_t MarkedRow = -1;  ///< the cell, row or column marked for a swap; -1 = none
  std::int16_t MarkedCol = -1;

  /// Whether a drawing covers the board. The grid is then invisible.
  bool OverlayShown = false;

  /// Raised whenever a command shows the board or a drawing of it, even if it was shown before.
  std::function<void()> OnShown;

  /// Whether the grid holds a board of GridSize.
  bool Shown() const { return GridSize > 0 && grid.Rows() == GridSize + 2; }

  /// Whether any cell is a gap, or a given.
  bool HasGaps() const;
  bool HasGivens() const;

  /// Whether the player has typed into the current cell and not yet left it.
  bool Typing() const { return Shown() && TotalsChecked && !NewEntry; }

  /// Whether the board asks for each of the numbers 1 to n x n once.
  bool ByNormalRules() const;

  /// Whether the main diagonal's total differs from 0: only then can the board be shaded and drawn.
  bool HasTotal() const;

  /// Covers the grid with a drawing, or shows the grid again.
  void SetOverlayShown(bool shown);

  /// Makes the grid an empty board of GridSize: empty value cells in their colours, the frame in
  /// the window's; removes the marks.
  void SetupBoard();

  /// Fills the value block: with `value` in the Variable mode, with 1..n x n in reading order in
  /// the Normal mode. Clears the block's CellFlags.
  void FillBoard(double value);

  /// Stores the totals of the value block around it: rows in (r, 0), columns in (0, c), the main
  /// diagonal in (0, 0), the other diagonal in (0, n + 1) and (n + 1, 0).
  void ComputeTotals();

  /// Computes the totals and writes values and totals into the grid, which removes a drawing;
  /// changes no colours.
  void ShowBoard();

  /// Computes the totals and writes them into the grid; changes no colours.
  void ShowTotals();

  /// Shows a new board of order `order` with the values of `square`: totals uncoloured, the first
  /// value cell current.
  void ShowSquare(std::int16_t order, double target, Rules rules, const CellTable& square);

  /// Judges every total except (0, 0) as wrong.
  void MarkAllTotalsWrong();

  /// Empties the grid and resizes it for GridSize, with the bottom row in the window's colour.
  void ResizeBoard();

  /// Makes (row, column) current again after a command, or the first value cell if that is in the
  /// frame. Text typed there counts as entered.
  void ReturnTo(int row, int column);

  /// Reads the value block of the grid into BoardValues, so that a command works on what is shown.
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

/// The n x n block of `cells`.
Square<double> SquareOf(const CellTable& cells, int order);

}  // namespace numorra
