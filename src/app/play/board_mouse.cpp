#include "app/play/board_mouse.h"

#include "app/play/moves.h"

namespace numorra {
namespace {

constexpr const char* kMark = "X";

void WipeMarks(Board& board) {
  const int last = board.GridSize + 1;
  if (board.MarkedRow != -1) board.grid.SetText(board.MarkedRow, last, "");
  if (board.MarkedCol != -1) board.grid.SetText(last, board.MarkedCol, "");
}

/// Whether a row or a column of the grid is one of the value block.
bool IsInBlock(const Board& board, int line) {
  return line >= 1 && line <= board.GridSize;
}

bool IsInBlock(const Board& board, Place place) {
  return IsInBlock(board, place.Row) && IsInBlock(board, place.Column);
}

}  // namespace

PressOutcome PressBoard(Board& board, Dialogs& dialogs, int row, int column, PressedButton button) {
  if (!board.Shown()) return PressOutcome::Nothing;
  const int last = board.GridSize + 1;
  if (row < 0 || row > last || column < 0 || column > last) return PressOutcome::Nothing;
  if (!board.TotalsChecked) return PressOutcome::OpenShortMenu;

  Grid& grid = board.grid;
  const bool onCell = IsInBlock(board, Place{row, column});
  const bool onRowMark = column == last && IsInBlock(board, row);
  const bool onColumnMark = row == last && IsInBlock(board, column);
  if (button == PressedButton::Left) {
    if (onCell) {
      grid.SetCurrent(row, column);
      WipeMarks(board);
      board.MarkedRow = static_cast<std::int16_t>(row);
      board.MarkedCol = static_cast<std::int16_t>(column);
    } else if (onRowMark) {
      WipeMarks(board);
      board.MarkedRow = static_cast<std::int16_t>(row);
      grid.SetText(row, last, kMark);
    } else if (onColumnMark) {
      WipeMarks(board);
      board.MarkedCol = static_cast<std::int16_t>(column);
      grid.SetText(last, column, kMark);
    }
  } else if (button == PressedButton::Right) {
    if (onCell) {
      grid.SetCurrent(row, column);
      return PressOutcome::OpenMenu;
    }
    if (onRowMark && board.MarkedRow != -1) {
      if (!SwapRows(board, dialogs, row, board.MarkedRow)) return PressOutcome::Done;
      grid.SetText(board.MarkedRow, last, "");
      board.MarkedRow = -1;
    } else if (onColumnMark && board.MarkedCol != -1) {
      if (!SwapColumns(board, dialogs, column, board.MarkedCol)) return PressOutcome::Done;
      grid.SetText(last, board.MarkedCol, "");
      board.MarkedCol = -1;
    }
  }
  return PressOutcome::Done;
}

bool CanDrag(const Board& board, Place from) {
  return board.Shown() && board.TotalsChecked && IsInBlock(board, from) &&
         !board.grid.At(from.Row, from.Column).IsGap();
}

void DragCell(Board& board, Dialogs& dialogs, Place from, Place to) {
  if (!CanDrag(board, from) || !IsInBlock(board, to) || from == to) return;
  board.grid.SetCurrent(to.Row, to.Column);
  SwapCells(board, dialogs, from.Row, from.Column, to.Row, to.Column);
}

PressOutcome MarkByKey(Board& board, Dialogs& dialogs, MarkedLine line) {
  if (!board.Shown()) return PressOutcome::Nothing;
  const Grid& grid = board.grid;
  const int last = board.GridSize + 1;
  const int row = line == MarkedLine::Column ? last : grid.CurrentRow();
  const int column = line == MarkedLine::Row ? last : grid.CurrentColumn();
  const auto shows = [&grid](int r, int c) { return r > 0 && c > 0 && grid.Text(r, c) == kMark; };
  const bool another = (line == MarkedLine::Row && shows(board.MarkedRow, last)) ||
                       (line == MarkedLine::Column && shows(last, board.MarkedCol));
  return PressBoard(board, dialogs, row, column,
                    another ? PressedButton::Right : PressedButton::Left);
}

}  // namespace numorra
