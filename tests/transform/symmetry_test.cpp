#include "transform/symmetry.h"

#include <gtest/gtest.h>

#include "app/board/totals_check.h"
#include "support/boards.h"

namespace numorra {
namespace {

struct Case {
  Symmetry symmetry;
  const char* ofLoShu;
  int row, column;  // where (1, 2) of an order 4 board goes
};

constexpr Case kCases[] = {
    {Symmetry::Rotate90, "4 9 2 / 3 5 7 / 8 1 6", 2, 4},
    {Symmetry::Rotate180, "8 3 4 / 1 5 9 / 6 7 2", 4, 3},
    {Symmetry::Rotate270, "6 1 8 / 7 5 3 / 2 9 4", 3, 1},
    {Symmetry::FlipHorizontal, "4 3 8 / 9 5 1 / 2 7 6", 4, 2},
    {Symmetry::FlipVertical, "6 7 2 / 1 5 9 / 8 3 4", 1, 3},
    {Symmetry::FlipDiagonal1, "8 1 6 / 3 5 7 / 4 9 2", 3, 4},
    {Symmetry::FlipDiagonal2, "2 9 4 / 7 5 3 / 6 1 8", 2, 1},
};

TEST(Symmetries, MoveEveryCellWhereTheyShould) {
  for (const Case& c : kCases) {
    Board board;
    ShowRows(board, "2 7 6 / 9 5 1 / 4 3 8");
    TurnBoard(board, c.symmetry);
    EXPECT_EQ(ShownRows(board.grid), ParseRows(c.ofLoShu)) << c.ofLoShu;
    ShowRows(board, "1 2 3 4 / 5 6 7 8 / 9 10 11 12 / 13 14 15 16");
    TurnBoard(board, c.symmetry);
    EXPECT_EQ(board.grid.Text(c.row, c.column), "2") << c.ofLoShu;
  }
}

TEST(Symmetries, RoundTheHalfTheyWalkOver) {
  const std::pair<Symmetry, const char*> cases[] = {
      {Symmetry::FlipVertical, "2.5 2.5 2 / 3.5 3.5 4 / 4.5 4.5 4"},
      {Symmetry::FlipDiagonal1, "4.5 3.5 2 / 4.5 4 2 / 4 4 2"},
      {Symmetry::FlipDiagonal2, "2 3.5 4.5 / 2 4 4.5 / 2 4 4"},
      {Symmetry::FlipHorizontal, "4.5 4.5 4.5 / 3.5 3.5 3.5 / 2.5 2.5 2.5"},
      {Symmetry::Rotate180, "4.5 4.5 4.5 / 3.5 3.5 3.5 / 2.5 2.5 2.5"}};
  for (const auto& [symmetry, turned] : cases) {
    Board board;
    ShowRows(board, "2.5 2.5 2.5 / 3.5 3.5 3.5 / 4.5 4.5 4.5");
    TurnBoard(board, symmetry);
    EXPECT_EQ(ShownRows(board.grid), ParseRows(turned)) << turned;
  }
}

TEST(Symmetries, StopAtAValueThatDoesNotFitWithTheExchangesSoFarKept) {
  for (const Symmetry symmetry :
       {Symmetry::FlipVertical, Symmetry::FlipDiagonal1, Symmetry::FlipDiagonal2}) {
    Board board;
    ShowRows(board, "1 2 3 / 40000 5 6 / 7 8 9");
    if (symmetry == Symmetry::FlipDiagonal2) ShowRows(board, "1 2 3 / 4 5 40000 / 7 8 9");
    const auto shown = ShownRows(board.grid);
    EXPECT_THROW(TurnBoard(board, symmetry), RuntimeError);
    EXPECT_EQ(ShownRows(board.grid), shown);
    EXPECT_NE(RowsOf(board.BoardValues, 3), shown);
  }
  Board board;
  ShowRows(board, "1 2 3 / 4 5 40000 / 7 8 9");
  TurnBoard(board, Symmetry::FlipVertical);
  EXPECT_EQ(board.grid.Text(2, 1), "40000") << "values of the other half travel as they are";
}

TEST(TurnBoard, JudgesTotalsAgainOnceTheyWereJudged) {
  Board board;
  ShowRows(board, "2 7 6 / 9 5 1 / 4 3 9");
  Recount(board);
  board.grid.SetCurrent(2, 2);
  TurnBoard(board, Symmetry::Rotate90);
  EXPECT_EQ(board.grid.Background(0, 1), ColorTable[kWrongTotal]);
  EXPECT_EQ(board.grid.Background(0, 3), ColorTable[kRightTotal]);
  EXPECT_EQ(board.grid.CurrentRow(), 2);
}

}  // namespace
}  // namespace numorra
