#include "app/board/board.h"

#include <gtest/gtest.h>

#include "support/boards.h"

namespace numorra {
namespace {

TEST(GridRedrawLock, HoldsBackRepaintsAndIsLiftedByOneCall) {
  Grid grid;
  int repaints = 0;
  grid.OnRepaint = [&] { ++repaints; };
  grid.LockRedraw(true);
  grid.LockRedraw(true);
  grid.Reshape(3, 3);
  grid.SetText(1, 1, "x");
  EXPECT_EQ(repaints, 0);
  grid.LockRedraw(false);
  EXPECT_EQ(repaints, 1);
  EXPECT_FALSE(grid.RedrawLocked());
  grid.SetText(1, 1, "y");
  EXPECT_EQ(repaints, 1) << "one request until the painter takes it";
  grid.TakeRepaint();
  grid.SetText(1, 1, "z");
  EXPECT_EQ(repaints, 2);
}

TEST(BoardLayout, HoldsTheLargestOrderAndRefusesToIndexBeyond) {
  Board board;
  ShowCounted(board, 51);
  EXPECT_EQ(board.grid.Text(51, 51), "2601");
  EXPECT_THROW(board.grid.SetCurrent(53, 0), RuntimeError);
  board.GridSize = 52;
  EXPECT_THROW(board.ComputeTotals(), RuntimeError);
}

TEST(SetupBoard, ForgetsMarksColoursAndTexts) {
  Board board;
  ShowRows(board, "1 2 3 / 4 5 6 / 7 8 9");
  board.MarkedRow = 2;
  board.MarkAllTotalsWrong();
  EXPECT_EQ(board.grid.Foreground(0, 4), ColorTable[kTotalText]);
  EXPECT_EQ(board.grid.Background(0, 0), kWindowBackground) << "(0, 0) is left alone";
  board.SetupBoard();
  EXPECT_EQ(board.MarkedRow, -1);
  EXPECT_EQ(board.grid.Background(4, 0), kWindowBackground);
  EXPECT_EQ(board.grid.Text(1, 1), "");
  board.ResizeBoard();
  EXPECT_EQ(board.grid.Rows(), 5);
  for (int column = 0; column < 5; ++column)
    EXPECT_EQ(board.grid.Background(4, column), kWindowBackground);
}

}  // namespace
}  // namespace numorra
