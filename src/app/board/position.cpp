#include "app/board/position.h"

#include <tuple>

#include "app/board/totals_check.h"

namespace numorra {
namespace {

/// Shows the totals in the window's colours, as before any check.
void UnjudgeTotals(Board& board) {
  const int last = board.GridSize + 1;
  for (int line = 0; line <= last; ++line) {
    board.grid.Judge(line, 0, Verdict::Unjudged);
    board.grid.Judge(0, line, Verdict::Unjudged);
  }
  board.TotalsJudged = board.UntouchedBase = false;
}

}  // namespace

Position PositionOf(const Board& board) {
  Position position;
  if (!board.Shown()) return position;
  const Grid& grid = board.grid;
  const auto cellAt = [&](int cell) -> const Grid::Cell& {
    const Place place = PlaceAt(cell, board.GridSize);
    return grid.At(place.Row, place.Column);
  };
  position.Texts = SquareOf(board.GridSize, [&](int cell) {
    const Grid::Cell& shown = cellAt(cell);
    return shown.IsGap() ? std::string() : shown.Text;
  });
  if (board.HasGivens()) {
    position.Givens = SquareOf(board.GridSize, [&](int cell) { return cellAt(cell).Given; });
  }
  position.Noted = grid.AllNotes();
  position.Target = board.TargetTotal;
  position.Base = board.BaseValue;
  position.Asked = board.Asked;
  position.Checked = board.TotalsChecked;
  position.Judged = board.TotalsJudged;
  position.Typing = board.Typing();
  position.WinTold = board.WinTold;
  position.Row = grid.CurrentRow();
  position.Column = grid.CurrentColumn();
  return position;
}

void Restore(Board& board, const Position& position) {
  Grid& grid = board.grid;
  const RedrawLock lock(grid);
  if (position.Order() == 0) {
    board.SetOverlayShown(false);
    grid.Reshape(0, 0);
    grid.SetVisible(false);
    board.TotalsChecked = board.TotalsJudged = board.UntouchedBase = false;
    return;
  }
  board.NewEntry = true;  // typed text is gone and need not be checked
  const bool reshaped = !board.Shown() || board.GridSize != position.Order();
  board.GridSize = static_cast<std::int16_t>(position.Order());
  board.TargetTotal = position.Target;
  board.BaseValue = position.Base;
  if (reshaped) board.SetupBoard();
  board.Asked = position.Asked;
  ForEachCell(board.GridSize, [&](int row, int column) {
    const Place place{row, column};
    grid.SetText(row, column, position.Texts[place]);
    grid.SetGiven(row, column, !position.Givens.IsEmpty() && position.Givens[place]);
  });
  grid.SetNotes(position.Noted);
  board.ReadGrid();
  board.ShowTotals();
  if (position.Judged) {
    Recount(board);
  } else {
    UnjudgeTotals(board);
  }
  board.TotalsChecked = position.Checked;
  if (!board.HasTotal()) board.SetOverlayShown(false);
  grid.SetVisible(!board.OverlayShown);
  board.ReturnTo(position.Row, position.Column);
  board.NewEntry = !position.Typing;
  board.WinTold = position.WinTold;
}

bool IsChange(const Position& before, const Position& after) {
  const auto seen = [](const Position& p) { return std::tie(p.Target, p.Texts, p.Givens); };
  return seen(before) != seen(after);
}

bool IsStep(const Position& before, const Position& after) {
  return IsChange(before, after) || before.Noted != after.Noted;
}

}  // namespace numorra
