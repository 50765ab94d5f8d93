#include "app/board/board.h"

#include <gtest/gtest.h>

#include "support/boards.h"

namespace numorra {
namespace {

TEST(GridHooks, AreRaisedByAnyChangeOfTheCurrentCell) {
  Grid grid;
  std::string log;
  grid.Reshape(4, 4);
  grid.OnLeaveCell = [&] { log += "leave" + std::to_string(grid.CurrentColumn()) + " "; };
  grid.OnCellChanged = [&] { log += "enter" + std::to_string(grid.CurrentColumn()) + " "; };
  grid.SetCurrent(2, 3);
  grid.SetCurrent(2, 3);
  EXPECT_EQ(log, "leave0 enter3 ");
  EXPECT_THROW(grid.SetCurrent(4, 0), RuntimeError);
  EXPECT_EQ(grid.CurrentRow(), 2);
}

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
  board.GridSize = 51;
  board.SetupBoard();
  board.FillBoard(0);
  board.ShowBoard();
  EXPECT_EQ(board.grid.Text(51, 51), "2601");
  board.GridSize = 52;
  EXPECT_THROW(board.ComputeTotals(), RuntimeError);
}

TEST(FillBoard, CountsInTheNormalModeAndRepeatsInTheVariable) {
  Board board;
  board.GridSize = 4;
  board.CellFlags(2, 2) = 7;
  board.FillBoard(99);
  EXPECT_EQ(RowsOf(board.BoardValues, 4),
            ParseRows("1 2 3 4 / 5 6 7 8 / 9 10 11 12 / 13 14 15 16"));
  EXPECT_EQ(board.CellFlags(2, 2), 0);
  board.SolveMode = ModeVariable;
  board.FillBoard(2.5);
  EXPECT_EQ(board.BoardValues(4, 1), 2.5);
}

TEST(SetupBoard, ForgetsMarksColoursAndTexts) {
  Board board;
  ShowRows(board, "1 2 3 / 4 5 6 / 7 8 9");
  board.MarkedRow = 2;
  board.MarkAllTotalsWrong();
  EXPECT_EQ(board.grid.Background(4, 0), ColorTable[kWrongTotal]);
  EXPECT_EQ(board.grid.Foreground(0, 4), ColorTable[kTotalText]);
  EXPECT_EQ(board.grid.Background(0, 0), kWindowBackground) << "(0, 0) is left alone";
  board.SetupBoard();
  EXPECT_EQ(board.MarkedRow, -1);
  EXPECT_EQ(board.grid.Background(4, 0), kWindowBackground);
  EXPECT_EQ(board.grid.Text(1, 1), "");
  board.ResizeBoard();
  EXPECT_EQ(board.grid.Rows(), 5);
}

}  // namespace
}  // namespace numorra
