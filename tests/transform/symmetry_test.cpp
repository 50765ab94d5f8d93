#include "transform/symmetry.h"

#include <gtest/gtest.h>

#include "support/boards.h"

namespace numorra {
namespace {

/// The symmetry behind a menu item.
const Symmetry& SymmetryNamed(const std::string& name) {
  return *std::find_if(kSymmetries.begin(), kSymmetries.end(),
                       [&](const Symmetry& symmetry) { return symmetry.Name == name; });
}

struct Case {
  const char* symmetry;
  const char* ofLoShu;
  int row, column;  // where (1, 2) of an order 4 board goes
};

constexpr Case kCases[] = {
    {"rot90x", "4 9 2 / 3 5 7 / 8 1 6", 2, 4},  {"rot180x", "8 3 4 / 1 5 9 / 6 7 2", 4, 3},
    {"rot270x", "6 1 8 / 7 5 3 / 2 9 4", 3, 1}, {"fliphx", "4 3 8 / 9 5 1 / 2 7 6", 4, 2},
    {"flipvx", "6 7 2 / 1 5 9 / 8 3 4", 1, 3},  {"flipd1x", "8 1 6 / 3 5 7 / 4 9 2", 3, 4},
    {"flipd2x", "2 9 4 / 7 5 3 / 6 1 8", 2, 1},
};

TEST(Symmetries, MoveEveryCellWhereTheyShould) {
  for (const Case& c : kCases) {
    Board board;
    ShowRows(board, "2 7 6 / 9 5 1 / 4 3 8");
    TurnBoard(board, SymmetryNamed(c.symmetry));
    EXPECT_EQ(ShownRows(board.grid), ParseRows(c.ofLoShu)) << c.ofLoShu;
    ShowRows(board, "1 2 3 4 / 5 6 7 8 / 9 10 11 12 / 13 14 15 16");
    TurnBoard(board, SymmetryNamed(c.symmetry));
    EXPECT_EQ(board.grid.Text(c.row, c.column), "2") << c.ofLoShu;
  }
}

TEST(Symmetries, RoundTheHalfTheyWalkOver) {
  const std::pair<const char*, const char*> cases[] = {
      {"flipvx", "2.5 2.5 2 / 3.5 3.5 4 / 4.5 4.5 4"},
      {"flipd1x", "4.5 3.5 2 / 4.5 4 2 / 4 4 2"},
      {"flipd2x", "2 3.5 4.5 / 2 4 4.5 / 2 4 4"},
      {"fliphx", "4.5 4.5 4.5 / 3.5 3.5 3.5 / 2.5 2.5 2.5"},
      {"rot180x", "4.5 4.5 4.5 / 3.5 3.5 3.5 / 2.5 2.5 2.5"}};
  for (const auto& [symmetry, turned] : cases) {
    Board board;
    ShowRows(board, "2.5 2.5 2.5 / 3.5 3.5 3.5 / 4.5 4.5 4.5");
    TurnBoard(board, SymmetryNamed(symmetry));
    EXPECT_EQ(ShownRows(board.grid), ParseRows(turned)) << turned;
  }
}

TEST(Symmetries, StopAtAValueThatDoesNotFitWithTheExchangesSoFarKept) {
  for (const std::string symmetry : {"flipvx", "flipd1x", "flipd2x"}) {
    Board board;
    ShowRows(board, "1 2 3 / 40000 5 6 / 7 8 9");
    if (symmetry == "flipd2x") ShowRows(board, "1 2 3 / 4 5 40000 / 7 8 9");
    const auto shown = ShownRows(board.grid);
    EXPECT_THROW(TurnBoard(board, SymmetryNamed(symmetry)), RuntimeError);
    EXPECT_EQ(ShownRows(board.grid), shown);
    EXPECT_NE(RowsOf(board.BoardValues, 3), shown);
    TurnBoard(board, SymmetryNamed("rot180x"));
    TurnBoard(board, SymmetryNamed("rot180x"));
    EXPECT_EQ(ShownRows(board.grid), shown) << "what was half done is not carried on";
  }
  Board board;
  ShowRows(board, "1 2 3 / 4 5 40000 / 7 8 9");
  TurnBoard(board, SymmetryNamed("flipvx"));
  EXPECT_EQ(board.grid.Text(2, 1), "40000") << "values of the other half travel as they are";
}

}  // namespace
}  // namespace numorra
