#include "generate/normal_square.h"

#include <gtest/gtest.h>

#include "generate/proposal.h"
#include "generate/stepping.h"
#include "support/boards.h"
#include "support/scripted_random.h"
#include "transform/symmetry.h"

namespace numorra {
namespace {

/// Keeps the last count shown.
class CountingStage : public SilentStage {
 public:
  using SilentStage::ShowCount;
  void ShowCount(const char* text) override { Last = text; }
  std::string Last;
};

/// The search as it is told: every start is filled and every line added up.
std::vector<SteppingAttempt> PlainSearch(int order) {
  std::vector<SteppingAttempt> kept;
  for (std::int16_t pattern = 0; pattern < 2; ++pattern) {
    for (std::int16_t row = 1; row <= order; ++row) {
      for (std::int16_t column = 1; column <= order; ++column) {
        CellTable cells;
        FillByStepping(cells, order, row, column, kSteppings[pattern]);
        if (slow::WhyNotMagic(RowsOf(cells, order), MagicConstant(order)).empty()) {
          kept.push_back({row, column, pattern});
        }
      }
    }
  }
  return kept;
}

TEST(FindMagicStarts, FindsWhatThePlainSearchFindsInItsOrder) {
  for (int order = 1; order <= 17; order += 2) {
    EXPECT_EQ(FindMagicStarts(order, MagicConstant(order)), PlainSearch(order)) << order;
  }
  EXPECT_EQ(FindMagicStarts(49, MagicConstant(49)).size(), 98U);
  EXPECT_EQ(FindMagicStarts(45, MagicConstant(45)).size(), 30U);
}

TEST(NormalSquare, IsNormalAndMagicAtEveryOrder) {
  TickingClock clock(1);
  ClockSeededRandom random(clock);
  CountingStage stage;
  NormalSquare generator(random, stage);
  for (int order = 3; order <= kMaxOrder; ++order) {
    for (int time = 0; time < 3; ++time) {
      EXPECT_EQ(slow::WhyNotNormal(RowsOf(generator.Build(order), order)), "") << order;
    }
    if (order % 2 == 1) {
      EXPECT_EQ(stage.Last, std::to_string(2 * order * order));
    }
  }
}

TEST(NormalSquare, BuildsTheSmallOrdersThatHaveNoMagicSquare) {
  TickingClock clock(1);
  ClockSeededRandom random(clock);
  SilentStage stage;
  NormalSquare generator(random, stage);
  EXPECT_EQ(RowsOf(generator.Build(2), 2), ParseRows("1 4 / 2 3"));
  EXPECT_EQ(RowsOf(generator.Build(1), 1), ParseRows("1"));
  EXPECT_THROW(generator.Build(0), RuntimeError);
  EXPECT_THROW(generator.Build(-4), RuntimeError);
}

TEST(NormalSquare, LaysConwaysLettersOverTheOddSquare) {
  // The odd square is the third attempt (0.3 x 6 rounds to 2), every letter decides one block.
  ScriptedRandom random({0.3});
  CountingStage stage;
  NormalSquare generator(random, stage);
  const auto attempts = FindMagicStarts(3, 15);
  ASSERT_EQ(attempts.size(), 2U);
  CellTable odd;
  FillByStepping(odd, 3, attempts[0].StartRow, attempts[0].StartColumn,
                 kSteppings[attempts[0].Pattern]);
  const CellTable lux = generator.Build(6);
  const auto block = [&](int i, int j) {
    const double base = 4 * odd(i, j) - 4;
    std::string order;
    for (const auto& [r, c] : {std::pair{0, 0}, {0, 1}, {1, 0}, {1, 1}}) {
      order += std::to_string(static_cast<int>(lux(2 * i - 1 + r, 2 * j - 1 + c) - base));
    }
    return order;
  };
  const std::string l = "4123", u = "1423";
  const std::string letters[3][3] = {{l, l, l}, {l, u, l}, {u, l, u}};
  for (int i = 1; i <= 3; ++i) {
    for (int j = 1; j <= 3; ++j)
      EXPECT_EQ(block(i, j), letters[i - 1][j - 1]) << i << "," << j;
  }
  EXPECT_EQ(stage.Last, "24") << "six letters, nine copies, nine blocks";
}

TEST(NormalSquare, TurnsDoublyEvenSquaresOnAtEveryRun) {
  ScriptedRandom random({0.5});
  CountingStage stage;
  NormalSquare generator(random, stage);
  CellTable expected = TableOf(ParseRows("16 2 3 13 / 5 11 10 8 / 9 7 6 12 / 4 14 15 1"));
  for (int run = 1; run <= 5; ++run) {
    RotateBoard90(expected, 4);
    EXPECT_EQ(RowsOf(generator.Build(4), 4), RowsOf(expected, 4)) << run;
    EXPECT_EQ(stage.Last, std::to_string(17 * run)) << "the counter goes on";
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
