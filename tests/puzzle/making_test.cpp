#include "puzzle/making.h"

#include <cstdio>
#include <gtest/gtest.h>

#include "app/board/board.h"
#include "puzzle/code.h"
#include "puzzle/fresh_puzzle.h"
#include "puzzle/search.h"
#include "support/puzzle_judge.h"
#include "support/soak.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

class MakingTest : public testing::Test {
 protected:
  Puzzle Fresh(int order, std::optional<std::int64_t> total = {}, bool limit = false) {
    const auto square = FreshSquare({order, total, limit}, random_, stage_);
    EXPECT_TRUE(square);
    return *square;
  }
  std::variant<MadePuzzle, CannotMake> Make(const Puzzle& square, const PuzzleWish& wish) {
    return MakePuzzle(square, wish, random_, stage_);
  }
  static int Clues(const Puzzle& puzzle) { return puzzle.Cells.Size() - puzzle.Gaps(); }

  SeededRandom random_{21};
  SilentStage stage_;
};

/// A hundred puzzles, judged by code that shares nothing with their making.
TEST_F(MakingTest, MakesFairPuzzlesOfEveryGrade) {
  for (int order = 3; order <= 8; ++order) {
    for (const Grade grade : kGrades) {
      for (int draw = 0; draw < (order < 7 ? 5 : 2); ++draw) {
        const auto result = Make(Fresh(order), {grade, {}, draw == 1});
        ASSERT_TRUE(std::holds_alternative<MadePuzzle>(result));
        EXPECT_EQ(WhyUnfair(std::get<MadePuzzle>(result)), "")
            << NameOf(grade) << " of order " << order;
        EXPECT_TRUE(order < 5 || std::get<MadePuzzle>(result).Needed == grade)
            << "a small square may give no puzzle that is as hard";
      }
    }
  }
}

/// A third of the squares of order 4 have no expert puzzle; another one is drawn then. Of other
/// totals, at least 95 in 100 have the grade.
TEST_F(MakingTest, FreshPuzzlesHaveTheGrade) {
  int ofOtherTotals = 0;
  for (int draw = 0; draw < 60; ++draw) {
    const auto made = MakeFreshPuzzle({4}, {Grade::Expert}, random_, stage_);
    EXPECT_EQ(std::get<MadePuzzle>(made).Needed, Grade::Expert);
    SquareWish square{4 + draw % 4};
    square.Total = NormalTotal(square.Order) * random_.Between(50, 300) / 100 + 1;
    const auto grade = static_cast<Grade>(1 + draw % 3);
    const auto other = std::get<MadePuzzle>(MakeFreshPuzzle(square, {grade}, random_, stage_));
    if (other.Needed == grade) ++ofOtherTotals;
    EXPECT_EQ(draw % 6 == 0 ? WhyUnfair(other) : "", "");
  }
  EXPECT_GE(ofOtherTotals, 57);
  const auto why = [&](const SquareWish& square, const PuzzleWish& wish) {
    return std::get<CannotMake>(MakeFreshPuzzle(square, wish, random_, stage_)).Why;
  };
  EXPECT_EQ(why({3, 16}, {Grade::Easy, 9}), "a puzzle of this size has fewer than 9 clues");
  EXPECT_EQ(why({4}, {Grade::Easy, 5}),
            "in 20 squares, no puzzle of grade easy had fewer than 8 clues");
}

/// Random puzzles for as long as a soak runs; every other one has any total.
TEST_F(MakingTest, SoaksInRandomPuzzles) {
  const Soak soak;
  SeededRandom lot(soak.Seed);
  int made = 0;
  for (; soak.Goes(); ++made) {
    SquareWish wish{lot.Between(3, 8)};
    if (made % 2 == 1)
      wish.Total = wish.Order * lot.Between(3, 60) + lot.Between(0, wish.Order - 1);
    const auto square = FreshSquare(wish, lot, stage_);
    if (!square) continue;
    const auto grade = static_cast<Grade>(lot.Between(0, 4));
    const auto result = MakePuzzle(*square, {grade, {}, lot.Between(0, 1) == 1}, lot, stage_);
    ASSERT_TRUE(std::holds_alternative<MadePuzzle>(result));
    ASSERT_EQ(WhyUnfair(std::get<MadePuzzle>(result)), "")
        << NameOf(grade) << ", puzzle " << made << " of seed " << soak.Seed;
  }
  if (made > 0) std::printf("%d puzzles\n", made);
}

TEST_F(MakingTest, MakesPuzzlesOfAnyTotal) {
  for (const auto& [total, limit] : {std::pair(90, false), std::pair(25, true)}) {
    for (const Grade grade : {Grade::Easy, Grade::Hard}) {
      const auto result = Make(Fresh(5, total, limit), {grade});
      ASSERT_TRUE(std::holds_alternative<MadePuzzle>(result));
      EXPECT_EQ(WhyUnfair(std::get<MadePuzzle>(result)), "");
    }
  }
  EXPECT_EQ(FreshSquare({10, 5}, random_, stage_).value_or(Puzzle{}).Target, 20)
      << "a sum that is too small is raised, as Auto does";
}

TEST_F(MakingTest, KeepsToTheCluesAndTheSymmetry) {
  const Puzzle square = Fresh(6);
  for (const int clues : {24, 29, 35}) {
    const auto result = Make(square, {Grade::Easy, clues});
    ASSERT_TRUE(std::holds_alternative<MadePuzzle>(result)) << clues;
    EXPECT_EQ(Clues(std::get<MadePuzzle>(result).Clues), clues);
    EXPECT_EQ(WhyUnfair(std::get<MadePuzzle>(result)), "");
  }
  for (int draw = 0; draw < 5; ++draw) {
    const auto result = Make(Fresh(5), {Grade::Hard, 13});
    EXPECT_EQ(std::get<MadePuzzle>(result).Needed, Grade::Hard) << "clues are added with care";
  }
  const auto symmetric = Make(Fresh(5), {Grade::Medium, 17, true});
  ASSERT_TRUE(std::holds_alternative<MadePuzzle>(symmetric));
  const Puzzle& clues = std::get<MadePuzzle>(symmetric).Clues;
  EXPECT_EQ(Clues(clues), 17);
  for (int cell = 0; cell < 25; ++cell)
    EXPECT_EQ(clues.Cells[cell] == 0, clues.Cells[24 - cell] == 0);
  const auto why = [&](const PuzzleWish& wish) {
    const auto result = Make(square, wish);
    const auto* cannot = std::get_if<CannotMake>(&result);
    return cannot ? cannot->Why : "";
  };
  EXPECT_EQ(why({Grade::Easy, 22}),
            "in 20 tries, no puzzle of grade easy from this square had fewer than 23 clues");
  EXPECT_EQ(why({Grade::Easy, 29, true}),
            "symmetric gaps cannot leave 29 clues here: try one more or one less");
  EXPECT_EQ(why({Grade::Easy, 36}), "a puzzle of this size has fewer than 36 clues");
}

TEST_F(MakingTest, TheSameSeedGivesTheSamePuzzles) {
  const auto make = [](std::uint64_t seed) {
    SeededRandom random(seed);
    SilentStage stage;
    const auto square = FreshSquare({6}, random, stage);
    return CodeOf(std::get<MadePuzzle>(MakePuzzle(*square, {Grade::Expert}, random, stage)).Clues);
  };
  EXPECT_EQ(make(3), make(3));
  EXPECT_NE(make(3), make(4));
}

}  // namespace
}  // namespace numorra
