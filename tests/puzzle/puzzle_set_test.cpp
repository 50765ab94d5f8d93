#include "puzzle/puzzle_set.h"

#include <gtest/gtest.h>
#include <set>

#include "study/images.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

class PuzzleSetTest : public testing::Test {
 protected:
  /// The puzzles of a set.
  std::vector<MadePuzzle> Make(const PuzzleSetWish& wish) {
    PuzzleSet set(wish, random_, stage_);
    std::vector<MadePuzzle> puzzles;
    while (auto made = set.Next())
      puzzles.push_back(std::move(*made));
    shortfall_ = set.Shortfall();
    return puzzles;
  }

  static std::size_t Different(const std::vector<MadePuzzle>& puzzles) {
    std::set<Square<double>> forms;
    for (const MadePuzzle& made : puzzles)
      forms.insert(StandardForm(Square<double>(made.Clues.Cells)));
    return forms.size();
  }

  SeededRandom random_{12};
  SilentStage stage_;
  std::string shortfall_;
};

TEST_F(PuzzleSetTest, GoesFromEasyToHardAndRepeatsNothing) {
  const auto puzzles = Make({{4}, {{Grade::Hard, 30}, {Grade::Easy, 40}, {Grade::Medium, 30}}});
  ASSERT_EQ(puzzles.size(), 100U);
  EXPECT_EQ(shortfall_, "");
  EXPECT_EQ(Different(puzzles), 100U);
  for (std::size_t i = 0; i < puzzles.size(); ++i)
    EXPECT_EQ(puzzles[i].Needed, i < 40 ? Grade::Easy : i < 70 ? Grade::Medium : Grade::Hard) << i;
}

/// Order 3 has one square, of which only some dozens of puzzles can be made.
TEST_F(PuzzleSetTest, RepeatsOnlyWhereThereIsNothingElse) {
  const auto puzzles = Make({{3}, {{Grade::Easy, 150}}});
  ASSERT_EQ(puzzles.size(), 150U);
  const std::size_t different = Different(puzzles);
  EXPECT_GT(different, 60U);
  EXPECT_EQ(shortfall_, std::to_string(150 - different) +
                            " of 150 puzzles repeat another one, turned or mirrored: no new one "
                            "was found");
}

TEST_F(PuzzleSetTest, TellsWhatWasNotReached) {
  struct Case {
    PuzzleSetWish Wish;
    std::size_t Made;
    const char* Shortfall;
  };
  const Case cases[] = {
      {{{3, 20, true}, {{Grade::Easy, 2}}}, 2, "the total is 15, not 20"},
      {{{3}, {{Grade::Extreme, 1}}}, 1, "the puzzle is of another grade than wished"},
      {{{5}, {{Grade::Easy, 20}}, 30}, 0, "a puzzle of this size has fewer than 25 clues"},
      {{{3}, {{Grade::Easy, 3}, {Grade::Hard, 2}}, 2},
       2,
       "3 of 5 puzzles were not made: in 20 squares, no puzzle of grade easy had fewer than 3 "
       "clues"},
  };
  for (const Case& wished : cases) {
    EXPECT_EQ(Make(wished.Wish).size(), wished.Made) << wished.Shortfall;
    EXPECT_EQ(shortfall_, wished.Shortfall);
  }
}

}  // namespace
}  // namespace numorra
