#include "generate/spreading.h"

#include <gtest/gtest.h>

#include "generate/exchange.h"
#include "support/boards.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

/// Squares after each pass, from a flat square and a seed, computed once by the plain method that
/// turns whole matrices cell by cell. They depend on every factor, place and turn.
TEST(Spreading, LeavesTheSquaresOfThePlainMethod) {
  struct Case {
    int order, base;
    bool limit;
    std::uint64_t seed;
    const char *diagonals, *edges, *rings;
    int passes;
  };
  const Case cases[] = {
      {4, 12, false, 1, "9 12 12 15 / 18 12 6 12 / 6 12 18 12 / 15 12 12 9",
       "13 6 12 17 / 10 18 12 8 / 12 6 12 18 / 13 18 12 5",
       "13 9 9 17 / 8 18 12 10 / 14 6 12 16 / 13 15 15 5", 206},
      {5, 40, false, 2,
       "45 40 40 40 35 / 30 40 40 50 40 / 40 40 40 40 40 / 50 40 40 30 40 / 35 40 40 40 45",
       "42 40 32 40 46 / 34 50 40 30 46 / 40 40 40 40 40 / 40 40 40 40 40 / 44 30 48 50 28",
       "42 33 36 43 46 / 38 50 40 30 42 / 38 40 40 40 42 / 38 40 40 40 42 / 44 37 44 47 28", 408},
      {6, 5, true, 3,
       "5 5 5 5 5 5 / 5 5 5 5 5 5 / 5 5 5 5 5 5 / 5 5 5 5 5 5 / 5 5 5 5 5 5 / 5 5 5 5 5 5",
       "6 5 5 5 5 4 / 3 5 5 5 5 7 / 5 5 5 5 5 5 / 5 5 5 5 5 5 / 5 5 5 5 5 5 / 6 5 5 5 5 4",
       "6 5 5 5 5 4 / 5 5 5 5 5 5 / 4 5 5 5 5 6 / 5 5 5 5 5 5 / 4 5 5 5 5 6 / 6 5 5 5 5 4", 412}};
  for (const Case& c : cases) {
    TurningSquare flat(c.order);
    flat.Fill(c.base);
    SeededRandom random(c.seed);
    SilentStage stage;
    PatternedSquare square(flat, c.limit, 0, random, stage);
    SpreadCornerDiagonals(square);
    EXPECT_EQ(RowsOf(square.Square().Settled(), c.order), ParseRows(c.diagonals));
    SpreadCornerEdges(square);
    EXPECT_EQ(RowsOf(square.Square().Settled(), c.order), ParseRows(c.edges));
    SpreadRings(square);
    EXPECT_EQ(RowsOf(square.Square().Settled(), c.order), ParseRows(c.rings));
    EXPECT_EQ(square.PassCount(), c.passes);
  }
}

/// Every cell of every order has an exchange; none touches (1, 1) except its own, and none asks for
/// more or less than the cells of a flat board can give.
TEST(Exchanges, ReachEveryCellOfEveryOrderAndAddUpToZero) {
  SeededRandom random(8);
  SilentStage stage;
  for (const int order : {4, 5, 6, 7, 8, 13, 50}) {
    TurningSquare flat(order);
    flat.Fill(10);
    for (const bool limit : {false, true}) {
      const PatternedSquare start(flat, limit, 0, random, stage);
      ForEachCell(order, [&](int r, int c) {
        PatternedSquare square = start;
        const Pattern pattern = ExchangeAt(square, r, c);
        CellTable sums;
        int highest = 0, lowest = 0;
        for (const auto& cell : pattern)
          sums(cell.Row, cell.Column) += cell.Weight;
        ForEachCell(order, [&](int y, int x) {
          highest = std::max(highest, static_cast<int>(sums(y, x)));
          lowest = std::min(lowest, static_cast<int>(sums(y, x)));
        });
        ASSERT_EQ(slow::WhyNotMagic(RowsOf(sums, order), 0), "");
        ASSERT_EQ(sums(r, c), 1) << order << " " << r << " " << c;
        ASSERT_TRUE(sums(1, 1) == 0 || (r == 1 && c == 1));
        if (limit) return;
        const FactorRange range = ExchangeRange(square, pattern);
        ASSERT_EQ(range.Low, -(9 / highest)) << "no cell of 10 below 1";
        ASSERT_EQ(range.High, 9 / -lowest);
      });
    }
  }
}

}  // namespace
}  // namespace numorra
