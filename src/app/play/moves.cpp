#include "app/play/moves.h"

#include <vector>

#include "app/board/totals_check.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Exchanges the cells pairwise and checks; does nothing and returns false if one of them is given.
bool Exchange(Board& board, Dialogs& dialogs, const std::vector<std::pair<Place, Place>>& pairs) {
  for (const auto& [a, b] : pairs) {
    if (!MayChange(board, dialogs, a.Row, a.Column)) return false;
    if (!MayChange(board, dialogs, b.Row, b.Column)) return false;
  }
  Grid& grid = board.grid;
  for (const auto& [a, b] : pairs) {
    std::string text = grid.Text(a.Row, a.Column);
    grid.SetText(a.Row, a.Column, grid.Text(b.Row, b.Column));
    grid.SetText(b.Row, b.Column, std::move(text));
  }
  Notes notes = grid.AllNotes();
  for (const auto& [a, b] : pairs) {
    notes.Swap(static_cast<int>(IndexOf(a, board.GridSize)),
               static_cast<int>(IndexOf(b, board.GridSize)));
  }
  grid.SetNotes(std::move(notes));
  CheckAndReturn(board, dialogs);
  return true;
}

/// The same for two lines with the cells placeOf(line, i); a line with itself does not change.
template <class PlaceOf>
bool ExchangeLines(Board& board, Dialogs& dialogs, int a, int b, PlaceOf placeOf) {
  if (a == b) return true;
  std::vector<std::pair<Place, Place>> pairs;
  for (int i = 1; i <= board.GridSize; ++i)
    pairs.push_back({placeOf(a, i), placeOf(b, i)});
  return Exchange(board, dialogs, pairs);
}

}  // namespace

void CheckAndReturn(Board& board, Dialogs& dialogs) {
  const int row = board.grid.CurrentRow();
  const int column = board.grid.CurrentColumn();
  CheckTotals(board, dialogs);
  board.ReturnTo(row, column);
}

bool MayChange(const Board& board, Dialogs& dialogs, int row, int column) {
  if (!board.grid.Given(row, column)) return true;
  dialogs.Tell(Say("the number in %1 is given and cannot be changed", NameOf(Place{row, column})));
  return false;
}

void SetCurrentCell(Board& board, Dialogs& dialogs, const std::string& text) {
  const int row = board.grid.CurrentRow();
  const int column = board.grid.CurrentColumn();
  if (!MayChange(board, dialogs, row, column)) return;
  const std::string old = board.grid.Text(row, column);
  board.grid.SetText(row, column, text);
  CheckAndReturn(board, dialogs);
  if (!board.UntouchedBase) return;
  board.grid.SetText(row, column, old);
  CheckAndReturn(board, dialogs);
}

bool SwapCells(Board& board, Dialogs& dialogs, int rowA, int columnA, int rowB, int columnB) {
  return Exchange(board, dialogs, {{{rowA, columnA}, {rowB, columnB}}});
}

bool SwapRows(Board& board, Dialogs& dialogs, int a, int b) {
  return ExchangeLines(board, dialogs, a, b, [](int row, int column) {
    return Place{row, column};
  });
}

bool SwapColumns(Board& board, Dialogs& dialogs, int a, int b) {
  return ExchangeLines(board, dialogs, a, b, [](int column, int row) {
    return Place{row, column};
  });
}

}  // namespace numorra
