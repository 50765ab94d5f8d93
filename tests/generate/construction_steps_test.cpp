#include "generate/construction_steps.h"

#include <gtest/gtest.h>
#include <map>

#include "generate/normal_square.h"
#include "generate/proposal.h"
#include "generate/stepping.h"
#include "study/images.h"
#include "support/boards.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

bool Says(const std::string& sentence, const std::string& what) {
  return sentence.find(what) != std::string::npos;
}

/// What an odd walk's sentence must say about the move from one cell to the next.
void ExpectTrueMove(const WalkStep& step, Place from, Place to, int n) {
  EXPECT_EQ(step.Arrow, std::pair(from, to));
  EXPECT_EQ(Says(step.Sentence, "at the top, so in at the bottom"), to.Row - from.Row > 1)
      << step.Sentence;
  EXPECT_EQ(Says(step.Sentence, "at the bottom, so in at the top"), from.Row - to.Row > 1);
  EXPECT_EQ(Says(step.Sentence, "on the left, so in on the right"), to.Column - from.Column > 1);
  EXPECT_EQ(Says(step.Sentence, "on the right, so in on the left"), from.Column - to.Column > 1);
  const bool broken = from.Row == to.Row || from.Column == to.Column;
  EXPECT_EQ(Says(step.Sentence, "in its way"), broken);
  EXPECT_EQ(broken, step.Number % n == 1 % n);
  if (broken) return;
  const bool up = to.Row == from.Row - 1 || to.Row - from.Row > 1;
  const bool right = to.Column == from.Column + 1 || from.Column - to.Column > 1;
  EXPECT_TRUE(Says(step.Sentence,
                   std::string(up ? "up" : "down") + " and to the " + (right ? "right" : "left")));
}

/// Plays the steps: the last board is the square itself, and the sentences match what is done.
void ExpectWalk(const Square<double>& square) {
  const int order = square.Order();
  const std::vector<WalkStep> steps = WalkOf(square);
  ASSERT_FALSE(steps.empty()) << "order " << order;
  std::map<std::pair<int, int>, std::string> board;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const WalkStep& step = steps[i];
    ASSERT_FALSE(step.Sentence.empty());
    for (const auto& [place, text] : step.Written) {
      const std::string before = board[{place.Row, place.Column}];
      if (Says(step.Sentence, "change places") && order % 4 == 0) {
        EXPECT_TRUE(Says(step.Sentence, before)) << step.Sentence;
        EXPECT_EQ(std::stoi(before) + std::stoi(text), order * order + 1);
      }
      board[{place.Row, place.Column}] = text;
    }
    for (const Place place : step.Marked)
      EXPECT_EQ(place, PlaceAt(IndexOf(place, order), order)) << "outside: " << step.Sentence;
    if (order % 2 == 1 && i > 0) {
      ExpectTrueMove(step, steps[i - 1].Written[0].first, step.Written[0].first, order);
    }
    if (step.Number > 0) {
      EXPECT_EQ(step.Written[0].second, std::to_string(step.Number));
      EXPECT_TRUE(Says(step.Sentence, std::to_string(step.Number)));
    }
  }
  ASSERT_EQ(static_cast<int>(board.size()), square.Size());
  for (int r = 1; r <= order; ++r) {
    for (int c = 1; c <= order; ++c) {
      ASSERT_EQ((board[{r, c}]), std::to_string(static_cast<int>(square[Place{r, c}])))
          << r << ", " << c << " of order " << order;
    }
  }
}

TEST(Walk, EndsAtEverySquareThatIsBuilt) {
  SeededRandom random(6);
  SilentStage stage;
  NormalSquare squares(random, stage);
  for (int order = 3; order <= kMaxOrder; ++order) {
    ExpectWalk(ExampleToWalk(order));
    if (order % 2 == 0) {  // four quarter turns; or a random odd square
      for (int choice = 0; choice < 4; ++choice)
        ExpectWalk(SquareOf(squares.Build(order), order));
      continue;
    }
    const auto starts = FindMagicStarts(order, NormalTotal(1.0 * order));
    for (std::size_t i = 0; i < starts.size(); i += order < 12 ? 1 : starts.size() / 4) {
      CellTable cells;
      FillByStepping(cells, order, starts[i].StartRow, starts[i].StartColumn,
                     kSteppings[starts[i].Pattern]);
      ExpectWalk(SquareOf(cells, order));
    }
  }
  for (int image = 0; image < kImages; ++image)
    ExpectWalk(ImageOf(image, ExampleToWalk(5)));
}

TEST(Walk, SaysWhatAClassNeedsToHear) {
  const std::vector<WalkStep> odd = WalkOf(ExampleToWalk(5));
  EXPECT_EQ(odd[0].Sentence, "1 goes to row 1, column 3");
  EXPECT_EQ(odd[1].Sentence,
            "2 goes up and to the right, out of the board at the top, so in at the bottom");
  EXPECT_EQ(odd[2].Sentence, "3 goes up and to the right");
  EXPECT_EQ(odd[5].Sentence, "6 finds 1 in its way up and to the right, so it goes below 5");
  const std::vector<WalkStep> eight = WalkOf(ExampleToWalk(8));
  EXPECT_EQ(eight[1].Sentence, "row 2 takes 9 to 16, from the left");
  EXPECT_EQ(eight[9].Sentence, "1 and 64, opposite each other, change places");
  const std::vector<WalkStep> six = WalkOf(ExampleToWalk(6));
  EXPECT_EQ(six[0].Sentence,
            "every block of four cells gets a letter: 2 rows of L, one of U, none of X");
  EXPECT_EQ(six[2].Sentence,
            "block 1 goes to row 1, column 2 of the blocks; its numbers are 1 to "
            "4, in the order of the letter L");
  EXPECT_EQ(six[1].Sentence, "in the middle an L and the U below it change places");
  EXPECT_EQ(
      six[3].Sentence,
      "block 2 goes up and to the right, out of the board at the top, so in at the bottom; its "
      "numbers are 5 to 8, in the order of the letter U");
}

TEST(Walk, KnowsWhatItCannotExplain) {
  EXPECT_TRUE(WalkOf({3, {4, 9, 2, 3, 5, 7, 8, 1, 5}}).empty());
  EXPECT_TRUE(WalkOf({4, {16, 3, 2, 13, 5, 10, 11, 8, 9, 6, 7, 12, 4, 15, 1, 14}}).empty());
  EXPECT_TRUE(WalkOf({5, {1, 23, 16, 4, 21, 15, 14, 7, 18, 11, 24, 17, 13,
                          9, 2,  20, 8, 19, 12, 6,  5, 3,  10, 22, 25}})
                  .empty());
  EXPECT_TRUE(WalkOf(Square<double>(1, 1)).empty() && WalkOf({2, {1, 4, 3, 2}}).empty());
  EXPECT_TRUE(WalkOf({3, {0.5, 9, 2, 3, 5, 7, 8, 1, 6}}).empty());
  EXPECT_TRUE(WalkOf({3, {8, 1.5, 6, 3, 5, 7, 4, 9, 2}}).empty());
}

}  // namespace
}  // namespace numorra
