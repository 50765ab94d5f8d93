#include "app/board/position.h"

#include <gtest/gtest.h>

#include "app/board/totals_check.h"
#include "support/boards.h"
#include "support/invariants.h"

namespace numorra {
namespace {

void ShowChecked(Board& board, const char* rows, double target, std::int16_t base = 5) {
  ShowRows(board, rows, target, base);
  Recount(board);
  board.ReturnTo(2, 3);
}

TEST(Positions, ComeBackWholeFromAnyOther) {
  Board board;
  std::vector<Position> positions{PositionOf(board)};
  const auto note = [&] { positions.push_back(PositionOf(board)); };
  ShowChecked(board, "8 1 6 / 3 5 7 / 4 9 2", 15);
  note();
  board.grid.SetText(1, 1, "");
  Recount(board);
  board.ReturnTo(1, 1);
  note();
  Notes notes;
  notes.Set(3, 0, NoteSet(40));
  board.grid.SetNotes(notes);
  note();
  ShowRows(board, "8 1 6 / 3 5 7 / 4 9 2", 16);
  board.TotalsChecked = false;
  board.ReturnTo(1, 1);
  note();
  ShowChecked(board, "5 5 5 / 5 5 5 / 5 5 5", 15);
  note();
  ShowChecked(board, "1 2 3 4 / 5 6 7 8 / 9 10 11 12 / 13 14 15 -16.5", 34, 8);
  note();
  for (const Position& from : positions) {
    for (const Position& to : positions) {
      Restore(board, from);
      EXPECT_EQ(PositionOf(board), from);
      Restore(board, to);
      EXPECT_EQ(PositionOf(board), to);
      EXPECT_EQ(WhyInvalid(board), "");
      EXPECT_EQ(IsStep(from, to), &from != &to);
      EXPECT_EQ(IsChange(from, to), from.Texts != to.Texts || from.Target != to.Target);
    }
  }
  EXPECT_TRUE(board.grid.Visible());
}

TEST(Positions, KeepShadesWhileTheOrderStaysAndDrawingsWhileThereIsATotal) {
  Board board;
  ShowChecked(board, "8 1 6 / 3 5 7 / 4 9 2", 15);
  const Position square = PositionOf(board);
  ShowChecked(board, "0 0 0 / 0 0 0 / 0 0 0", 15);
  const Position empty = PositionOf(board);
  board.grid.Shade(1, 1, Rgb(9, 9, 9), Rgb(255, 255, 255));
  Restore(board, square);
  EXPECT_TRUE(board.grid.Shaded(1, 1));
  board.SetOverlayShown(true);
  Restore(board, square);
  EXPECT_TRUE(board.OverlayShown && !board.grid.Visible());
  Restore(board, empty);
  EXPECT_TRUE(!board.OverlayShown && board.grid.Visible());
}

}  // namespace
}  // namespace numorra
