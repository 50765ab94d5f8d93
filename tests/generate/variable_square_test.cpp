#include "generate/variable_square.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

#include "generate/remainder.h"
#include "generate/size3_square.h"
#include "support/boards.h"
#include "support/stand_ins.h"
#include "transform/symmetry.h"

namespace numorra {
namespace {

/// Every cell varies from the base, and no number fills the board, also at small bases.
TEST(VariableSquares, AreVariedAllOver) {
  SeededRandom random(11);
  SilentStage stage;
  VariableSquare generator(random, stage);
  constexpr int kBuilds = 40;
  struct Case {
    int order, base, remainder;
    double mostFrequent, atBase;  // highest shares for any board and any cell
  };
  const Case cases[] = {{4, 2, 0, 0.9, 0.95}, {4, 10, 0, 0.5, 0.5},  {5, 3, 1, 0.7, 0.95},
                        {9, 50, 0, 0.2, 0.3}, {10, 50, 5, 0.2, 0.3}, {20, 2, 0, 0.7, 0.95}};
  for (const Case& c : cases) {
    CellTable atBase;
    const auto plan = PlanVariableSquare(c.order, c.order * c.base + c.remainder, false, false);
    for (int time = 0; time < kBuilds; ++time) {
      VariableBuild build;
      for (int tries = 1; tries == 1 || build.Status != SolveStatus::Built; ++tries)
        build = generator.Build(plan, {}, tries);
      std::map<double, int> times;
      ForEachCell(c.order, [&](int r, int col) {
        ++times[build.Square(r, col)];
        atBase(r, col) += build.Square(r, col) == c.base ? 1.0 / kBuilds : 0;
      });
      for (const auto& [number, count] : times)
        EXPECT_LE(count, c.mostFrequent * c.order * c.order) << c.order << "/" << c.base;
    }
    ForEachCell(c.order, [&](int r, int col) {
      EXPECT_LE(atBase(r, col), c.atBase) << c.order << "/" << c.base << " at " << r << col;
    });
  }
}

/// The other cells of a row hold 1 or more: every corner that leaves them that much is built, and
/// no other.
TEST(VariableSquares, HaveEveryPossibleCorner) {
  SeededRandom random(3);
  SilentStage stage;
  VariableSquare generator(random, stage);
  const std::pair<int, int> cases[] = {{4, 2}, {4, 9}, {5, 2}, {5, 20}, {6, 3}, {7, 4}, {50, 2}};
  for (const auto& [order, base] : cases) {
    const auto plan = PlanVariableSquare(order, order * base, false, true);
    const int highest = order * base - (order - 1);
    for (const int corner : {-3, 0, 1, 2, 3, highest - 1, highest, highest + 1, 500'000}) {
      const VariableBuild build = generator.Build(plan, corner, 1);
      EXPECT_EQ(slow::WhyNotMagic(RowsOf(build.Square, order), order * base), "");
      EXPECT_EQ(build.Square(1, 1), std::clamp(corner, 1, highest)) << order << "/" << base;
      ForEachCell(order, [&](int r, int c) { EXPECT_GE(build.Square(r, c), 1); });
    }
    for (int corner = 1; order < 8 && corner <= highest; ++corner)
      ASSERT_EQ(generator.Build(plan, corner, 1).Square(1, 1), corner) << order << "/" << base;
  }
}

TEST(RemainderEven, RaisesEveryLineOrComesBackTurned) {
  for (const int order : {4, 6, 10, 50}) {
    TurningSquare square(order);
    square.Fill(9);
    ASSERT_TRUE(SpreadRemainderEven(square, 3));
    EXPECT_EQ(slow::WhyNotMagic(RowsOf(square.Settled(), order), 9 * order + 3), "");
    ASSERT_TRUE(SpreadRemainderEven(square, -2));
    EXPECT_EQ(slow::WhyNotMagic(RowsOf(square.Settled(), order), 9 * order + 1), "");
  }
  // A quarter turn brings larger numbers under the two cells that are lowered.
  CellTable cells = TableFrom(ParseRows("5 5 5 1 / 5 5 5 5 / 5 5 1 5 / 5 5 5 5"));
  TurningSquare turnable(cells, 4);
  ASSERT_TRUE(SpreadRemainderEven(turnable, 1));
  EXPECT_EQ(turnable(4, 4), 1 + 1) << "(1, 4) of before, turned and raised";
  cells = TableFrom(ParseRows("1 2 3 1 / 4 1 1 5 / 6 1 1 7 / 1 8 9 1"));
  TurningSquare hopeless(cells, 4);
  EXPECT_FALSE(SpreadRemainderEven(hopeless, 1));
  for (int turn = 0; turn < 3; ++turn)
    RotateBoard90(cells, 4);
  EXPECT_EQ(RowsOf(hopeless.Settled(), 4), RowsOf(cells, 4));
}

TEST(RemainderOdd, RaisesEveryLineAndNoCellFalls) {
  SeededRandom random(2);
  for (const int order : {5, 7, 49}) {
    TurningSquare square(order);
    square.Fill(1);
    ASSERT_TRUE(SpreadRemainderOdd(square, order - 1, random));
    EXPECT_EQ(slow::WhyNotMagic(RowsOf(square.Settled(), order), 2 * order - 1), "");
    ForEachCell(order, [&](int r, int c) { EXPECT_GE(square(r, c), 1); });
  }
}

TEST(Size3, BuildsFromTwoRandomOffsets) {
  ScriptedRandom random({0.1});
  TurningSquare square(3);
  square.Fill(3);
  ASSERT_TRUE(BuildSize3Square(square, 3, random));
  EXPECT_EQ(RowsOf(square.Settled(), 3), ParseRows("4 1 4 / 3 3 3 / 2 5 2"));
  // p = 2 and r = 1, exchanged because the third draw is below five tenths.
  ScriptedRandom swapping({0.5, 0.1, 0.1});
  square.Fill(5);
  ASSERT_TRUE(BuildSize3Square(square, 5, swapping));
  EXPECT_EQ(RowsOf(square.Settled(), 3), ParseRows("6 2 7 / 6 5 4 / 3 8 4"));
  EXPECT_EQ(swapping.Reseeds, 3);
  square.Fill(2);
  EXPECT_FALSE(BuildSize3Square(square, 2, random));
  EXPECT_EQ(RowsOf(square.Settled(), 3), ParseRows("2 2 2 / 2 2 2 / 2 2 2"));
}

}  // namespace
}  // namespace numorra
