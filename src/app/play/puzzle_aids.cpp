#include "app/play/puzzle_aids.h"

#include <algorithm>

#include "app/board/numbers.h"

namespace numorra {
namespace {

/// The number in a cell, if it is one from 1 to kMostNoted; otherwise 0.
int NumberIn(const Grid::Cell& cell) {
  if (cell.IsGap()) return 0;
  const double number = Val(cell.Text);
  const bool whole = number >= 1 && number <= kMostNoted && number == Int(number);
  return whole ? static_cast<int>(number) : 0;
}

}  // namespace

NoteSet NumbersOnBoard(const Board& board) {
  NoteSet numbers;
  ForEachCell(board.GridSize, [&](int r, int c) {
    const int number = NumberIn(board.grid.At(r, c));
    if (number > 0) numbers.set(static_cast<std::size_t>(number));
  });
  return numbers;
}

std::vector<Place> EqualNumbersOn(const Board& board) {
  std::vector<Place> equal;
  if (!board.HasGivens() || !board.ByNormalRules()) return equal;
  NoteSet once, twice;
  ForEachCell(board.GridSize, [&](int r, int c) {
    const auto number = static_cast<std::size_t>(NumberIn(board.grid.At(r, c)));
    (once[number] ? twice : once).set(number);
  });
  ForEachCell(board.GridSize, [&](int r, int c) {
    const int number = NumberIn(board.grid.At(r, c));
    if (number > 0 && twice[static_cast<std::size_t>(number)]) equal.push_back({r, c});
  });
  return equal;
}

int NumbersToPlace::Missing() const {
  return static_cast<int>(std::count_if(Numbers.begin(), Numbers.end(), [this](int number) {
    return !Placed[static_cast<std::size_t>(number)];
  }));
}

NumbersToPlace NumbersToPlaceOn(const Board& board) {
  NumbersToPlace place;
  if (!board.ByNormalRules() || !(board.HasGivens() || board.HasGaps())) return place;
  NoteSet given;
  ForEachCell(board.GridSize, [&](int r, int c) {
    const Grid::Cell& cell = board.grid.At(r, c);
    if (cell.Given) given.set(static_cast<std::size_t>(NumberIn(cell)));
  });
  for (int number = 1; number <= board.GridSize * board.GridSize; ++number) {
    if (!given[static_cast<std::size_t>(number)]) place.Numbers.push_back(number);
  }
  place.Placed = NumbersOnBoard(board);
  return place;
}

Notes ShownNotes(const Board& board) {
  const Notes& notes = board.grid.AllNotes();
  if (notes.IsEmpty()) return {};
  const NoteSet hidden = board.ByNormalRules() ? NumbersOnBoard(board) : NoteSet();
  return NotesOf(board.GridSize, [&](int cell) {
    const Place place = PlaceAt(cell, board.GridSize);
    return board.grid.At(place.Row, place.Column).IsGap() ? notes[cell] & ~hidden : NoteSet();
  });
}

void ShowAids(Board& board) {
  board.grid.SetRepeated(EqualNumbersOn(board));
  const bool hides = !board.grid.AllNotes().IsEmpty() && board.ByNormalRules();
  board.grid.SetUnnoted(hides ? NumbersOnBoard(board) : NoteSet());
}

}  // namespace numorra
