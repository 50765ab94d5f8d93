#include "generate/normal_square.h"

#include <gtest/gtest.h>

#include "generate/proposal.h"
#include "generate/stepping.h"
#include "support/boards.h"
#include "support/stand_ins.h"
#include "transform/symmetry.h"

namespace numorra {
namespace {

/// The plain search: every start is filled and every line added up.
std::vector<SteppingAttempt> PlainSearch(std::int16_t order) {
  std::vector<SteppingAttempt> kept;
  for (std::int16_t pattern = 0; pattern < 2; ++pattern) {
    for (std::int16_t row = 1; row <= order; ++row) {
      for (std::int16_t column = 1; column <= order; ++column) {
        CellTable cells;
        FillByStepping(cells, order, row, column, kSteppings[pattern]);
        if (slow::WhyNotMagic(RowsOf(cells, order), NormalTotal(1.0 * order)).empty()) {
          kept.push_back({row, column, pattern});
        }
      }
    }
  }
  return kept;
}

TEST(FindMagicStarts, FindsWhatThePlainSearchFindsInItsOrder) {
  for (std::int16_t order = 1; order <= 17; order += 2) {
    EXPECT_EQ(FindMagicStarts(order, NormalTotal(1.0 * order)), PlainSearch(order)) << order;
  }
  EXPECT_EQ(FindMagicStarts(49, NormalTotal(1.0 * 49)).size(), 98U);
  EXPECT_EQ(FindMagicStarts(45, NormalTotal(1.0 * 45)).size(), 30U);
}

TEST(NormalSquare, IsNormalAndMagicAtEveryOrder) {
  SeededRandom random(1);
  NotingStage stage;
  NormalSquare generator(random, stage);
  for (int order = 3; order <= kMaxOrder; ++order) {
    for (int time = 0; time < 3; ++time) {
      EXPECT_EQ(slow::WhyNotNormal(RowsOf(generator.Build(order), order)), "") << order;
    }
    if (order % 2 == 1) {
      EXPECT_EQ(stage.Count, std::to_string(2 * order * order));
    }
  }
  // Orders without a magic square are built as far as possible.
  EXPECT_EQ(RowsOf(generator.Build(2), 2), ParseRows("1 4 / 2 3"));
  EXPECT_EQ(RowsOf(generator.Build(1), 1), ParseRows("1"));
  EXPECT_THROW(generator.Build(0), RuntimeError);
  EXPECT_THROW(generator.Build(-4), RuntimeError);
}

TEST(NormalSquare, LaysConwaysLettersOverTheOddSquare) {
  // The letters L L L / L U L / U L U on the square 8 1 6 / 3 5 7 / 4 9 2.
  ScriptedRandom random({0.3});
  NotingStage stage;
  NormalSquare generator(random, stage);
  EXPECT_EQ(RowsOf(generator.Build(6), 6),
            ParseRows("32 29  4  1 24 21 / 30 31  2  3 22 23 / 12  9 17 20 28 25 / "
                      "10 11 18 19 26 27 / 13 16 36 33  5  8 / 14 15 34 35  6  7"));
  EXPECT_EQ(stage.Count, "24") << "six letters, nine copies, nine blocks";
}

TEST(NormalSquare, TurnsDoublyEvenSquaresFurtherAtEveryRun) {
  ScriptedRandom random({0.5});
  NotingStage stage;
  NormalSquare generator(random, stage);
  CellTable expected = TableFrom(ParseRows("16 2 3 13 / 5 11 10 8 / 9 7 6 12 / 4 14 15 1"));
  for (int run = 1; run <= 5; ++run) {
    RotateBoard90(expected, 4);
    EXPECT_EQ(RowsOf(generator.Build(4), 4), RowsOf(expected, 4)) << run;
    EXPECT_EQ(stage.Count, std::to_string(17 * run)) << "the count continues";
  }
}

TEST(NormalSquare, AvoidsTheLastPickEvenWhenAnotherConstructionLeftIt) {
  // After two doubly even runs the shared field is 2; 0.2 x 10 would be 2, so 0.5 is drawn.
  ScriptedRandom random({0.2, 0.5});
  SilentStage stage;
  NormalSquare generator(random, stage);
  generator.Build(8);
  generator.Build(8);
  generator.Build(5);
  EXPECT_EQ(random.Reseeds, 2);
  const auto first = RowsOf(generator.Build(5), 5);
  EXPECT_NE(RowsOf(generator.Build(5), 5), first);
}

}  // namespace
}  // namespace numorra
