#include "puzzle/search.h"

#include <chrono>
#include <gtest/gtest.h>
#include <numeric>
#include <thread>

#include "study/special.h"
#include "support/boards.h"
#include "support/slow_classifier.h"
#include "support/squares_of_order4.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

/// 0 is a gap.
Puzzle PuzzleFrom(const std::string& rows, std::int64_t target, Rules rules = Rules::Normal,
                  bool limit = false) {
  return {Square<std::int64_t>(SquareFrom(ParseRows(rows))), target, rules, limit};
}

bool Fits(const Puzzle& solved, const Puzzle& clues) {
  for (int cell = 0; cell < clues.Cells.Size(); ++cell) {
    if (clues.Cells[cell] != 0 && clues.Cells[cell] != solved.Cells[cell]) return false;
  }
  return true;
}

/// A normal square with only `share` per cent of its numbers left.
Puzzle WithGaps(Puzzle puzzle, int share, Random& random) {
  std::vector<int> cells(static_cast<std::size_t>(puzzle.Cells.Size()));
  std::iota(cells.begin(), cells.end(), 0);
  Shuffle(std::span(cells), random);
  cells.resize(cells.size() - cells.size() * static_cast<std::size_t>(share) / 100);
  for (const int cell : cells)
    puzzle.Cells[cell] = 0;
  return puzzle;
}

Puzzle Bordered(int order, Random& random) {
  return {Square<std::int64_t>(BorderedSquare(order, random)), NormalTotal(order)};
}

Puzzle EmptyBoard(int order) {
  return {Square<std::int64_t>(order), NormalTotal(order)};
}

class SearchTest : public testing::Test {
 protected:
  SearchResult Find(const Puzzle& puzzle, std::int64_t nodes = 20'000) {
    return Solve(puzzle, {.Nodes = nodes}, random_, stage_);
  }
  SeededRandom random_{8};
  SilentStage stage_;
};

TEST_F(SearchTest, CountsWhatIsKnown) {
  const Puzzle empty3 = PuzzleFrom("0 0 0 / 0 0 0 / 0 0 0", 15);
  EXPECT_EQ(CountSolutions(empty3, 100, {}, stage_), 8);
  Puzzle positive = empty3;
  positive.Asked = Rules::Positive;
  EXPECT_EQ(CountSolutions(positive, 100, {}, stage_), 41);
  EXPECT_EQ(CountSolutions(positive, 10, {}, stage_), 10) << "up to the most that is asked for";
  const Puzzle empty4 = PuzzleFrom("0 0 0 0 / 0 0 0 0 / 0 0 0 0 / 0 0 0 0", 34);
  EXPECT_EQ(CountSolutions(empty4, 10'000, {}, stage_), 7040);
  EXPECT_EQ(CountSolutions(empty4, 10'000, {.Nodes = 100}, stage_), std::nullopt);
  EXPECT_EQ(
      CountSolutions(PuzzleFrom("4 0 0 16 / 0 0 0 0 / 0 0 0 0 / 1 0 0 13", 34), 99, {}, stage_), 4);
}

TEST_F(SearchTest, CountsSquaresOfAKind) {
  struct Case {
    LineKind Kind;
    int Order;
    std::int64_t Squares;
  };
  for (const auto& [kind, order, squares] : {Case{LineKind::Associative, 3, 8},
                                             {LineKind::Associative, 4, 384},
                                             {LineKind::Pandiagonal, 4, 384},
                                             {LineKind::MostPerfect, 4, 384},
                                             {LineKind::Ultramagic, 4, 0}}) {
    Puzzle empty = EmptyBoard(order);
    empty.Kind = kind;
    EXPECT_EQ(CountSolutions(empty, 1000, {}, stage_), squares) << order;
  }
}

/// The seconds count only the search's own work, not what others do meanwhile.
TEST_F(SearchTest, CountsOnlyItsOwnTime) {
  NotingStage stage;
  const auto sleepOnce = [&] {
    stage.YieldsLeft = 1;
    stage.OnLastYield = [] { std::this_thread::sleep_for(std::chrono::milliseconds(600)); };
  };
  const SearchLimit limit{.Seconds = 0.5};
  sleepOnce();
  const Puzzle puzzle = PuzzleFrom("0 0 0 / 0 0 0 / 0 0 0", 15);
  EXPECT_TRUE(std::holds_alternative<SeveralSolutions>(Solve(puzzle, limit, random_, stage)));
  sleepOnce();
  EXPECT_EQ(CountSolutions(puzzle, 100, limit, stage), 8);
}

TEST_F(SearchTest, SaysWhatIsUnsettledAndWhy) {
  EXPECT_EQ(WhyOpen({}, 0.5), "whether there is a solution was not settled in 0.5 seconds");
  EXPECT_EQ(WhyOpen({Puzzle()}, 3),
            "there is a solution; whether it is the only one was not settled in 3 seconds");
}

/// The list of all squares of order 4 is the complete checker.
TEST_F(SearchTest, AgreesWithTheListOfAllSquares) {
  const std::vector<slow::Rows> all = slow::ImagesOfOrder4();
  ASSERT_EQ(all.size(), 7040U);
  for (int share = 20; share <= 100; share += 10) {
    for (int draw = 0; draw < 6; ++draw) {
      Puzzle whole = PuzzleFrom("0 0 0 0 / 0 0 0 0 / 0 0 0 0 / 0 0 0 0", 34);
      const slow::Rows& chosen = all[static_cast<std::size_t>(random_.Between(0, 7039))];
      whole.Cells = Square<std::int64_t>(SquareFrom(chosen));
      Puzzle puzzle = WithGaps(whole, share, random_);
      if (draw % 2 == 1) std::swap(puzzle.Cells[0], puzzle.Cells[6]);
      const auto solutions = std::count_if(all.begin(), all.end(), [&](const slow::Rows& square) {
        return Fits({Square<std::int64_t>(SquareFrom(square))}, puzzle);
      });
      const SearchResult result = Find(puzzle);
      EXPECT_EQ(result.index(), solutions == 0 ? 2U : solutions == 1 ? 0U : 1U) << solutions;
      EXPECT_EQ(CountSolutions(puzzle, 9999, {}, stage_), solutions);
    }
  }
}

TEST_F(SearchTest, GivesBackSquaresThatFitTheClues) {
  for (int order = 5; order <= 8; ++order) {
    for (const int share : {0, 30, 50, 70, 90}) {
      const Puzzle clues = WithGaps(Bordered(order, random_), share, random_);
      const SearchResult result = Find(clues, 3000);
      std::vector<Puzzle> found;
      if (const auto* one = std::get_if<OneSolution>(&result)) found = {one->Solved};
      if (const auto* two = std::get_if<SeveralSolutions>(&result)) {
        found = {two->First, two->Second};
        EXPECT_NE(two->First.Cells, two->Second.Cells);
      }
      if (const auto* open = std::get_if<NotSettled>(&result)) {
        if (open->Found) found = {*open->Found};
      }
      EXPECT_FALSE(std::holds_alternative<NoSolution>(result)) << order << ", " << share;
      EXPECT_TRUE(share < 70 || std::holds_alternative<OneSolution>(result) || found.size() == 2);
      for (const Puzzle& solved : found) {
        EXPECT_TRUE(Fits(solved, clues));
        EXPECT_EQ(slow::WhyNotNormal(RowsOf(solved.Cells)), "");
      }
    }
  }
}

TEST_F(SearchTest, NeverTakesTheImpossibleForPossible) {
  for (int order = 4; order <= 6; ++order) {
    for (const int share : {50, 70, 90}) {
      const Puzzle whole = Bordered(order == 4 ? 5 : order, random_);
      Puzzle clues = WithGaps(whole, share, random_);
      std::vector<int> given;
      for (int cell = 0; cell < clues.Cells.Size(); ++cell) {
        if (clues.Cells[cell] != 0) given.push_back(cell);
      }
      std::swap(clues.Cells[given[0]], clues.Cells[given.back()]);
      const SearchResult result = Find(clues, 200'000);
      if (const auto* one = std::get_if<OneSolution>(&result)) {
        EXPECT_EQ(slow::WhyNotNormal(RowsOf(one->Solved.Cells)), "")
            << "another square has these clues";
      } else if (!std::holds_alternative<SeveralSolutions>(result)) {
        EXPECT_TRUE(std::holds_alternative<NoSolution>(result)) << order << ", " << share;
      }
    }
  }
}

TEST_F(SearchTest, KnowsThePositiveRules) {
  const auto indexOf = [&](const std::string& rows, std::int64_t target, bool limit) {
    return Find(PuzzleFrom(rows, target, Rules::Positive, limit)).index();
  };
  EXPECT_EQ(indexOf("5 0 0 / 0 5 0 / 0 0 0", 15, true), 1U);
  EXPECT_EQ(indexOf("5 4 0 / 0 5 0 / 0 0 0", 15, true), 0U);
  EXPECT_EQ(indexOf("13 0 0 / 0 5 0 / 0 0 0", 15, false), 2U);
  EXPECT_EQ(indexOf("0 0 0 / 0 0 0 / 0 0 0", 30, true), 2U) << "the middle would be 10";
  EXPECT_EQ(indexOf("0 0 0 / 0 0 0 / 0 0 0", 16, false), 2U) << "a third of 16 is no whole number";
  EXPECT_EQ(indexOf("0 0 0 0 / 0 0 0 0 / 0 0 0 0 / 0 0 0 0", 1'000'000'000'000, false), 1U);
}

/// Bounds close in on each other in steps of one only for a limited time.
TEST_F(SearchTest, EndsOnLargeNumbers) {
  const std::int64_t many = 1'000'000'000'000;
  const Puzzle puzzle{
      {4, {many + 1, 0, 0, many, 0, many - 1, many, 0, 0, many, many, 0, many, 0, 0, many}},
      4 * many,
      Rules::Positive};
  const SearchResult result = Solve(puzzle, {.Nodes = 3}, random_, stage_);
  EXPECT_FALSE(std::holds_alternative<OneSolution>(result) ||
               std::holds_alternative<SeveralSolutions>(result));
}

TEST_F(SearchTest, FillsLargeBoards) {
  for (const int order : {10, 16, 50}) {
    Puzzle clues = EmptyBoard(order);
    for (int i = 0; i < 9; ++i)
      clues.Cells[i / 3 * order + i % 3] = i + 1;
    for (const Puzzle& puzzle : {clues, WithGaps(Bordered(order, random_), 40, random_)}) {
      const SearchResult result = Find(puzzle, 200'000);
      const auto* several = std::get_if<SeveralSolutions>(&result);
      ASSERT_TRUE(several) << order;
      for (const Puzzle& solved : {several->First, several->Second}) {
        EXPECT_TRUE(Fits(solved, puzzle));
        EXPECT_EQ(slow::WhyNotNormal(RowsOf(solved.Cells)), "");
      }
      EXPECT_NE(several->First.Cells, several->Second.Cells);
    }
  }
}

/// Whether a square is of the kind is said by the checker of its term.
TEST_F(SearchTest, FillsBoardsOfAKind) {
  struct Case {
    const char* Term;
    int Order;
    int Share;
  };
  for (const auto& [term, order, share] : {Case{"associative", 8, 10},
                                           {"associative", 9, 20},
                                           {"associative", 16, 15},
                                           {"pandiagonal", 5, 40},
                                           {"pandiagonal", 7, 50},
                                           {"ultramagic", 5, 10},
                                           {"ultramagic", 7, 40},
                                           {"most-perfect", 8, 10},
                                           {"most-perfect", 12, 10}}) {
    Puzzle square = EmptyBoard(order);
    square.Kind = *FindLineKind(term);
    square.Cells = Square<std::int64_t>(FindSpecialKind(term)->Build(order, random_));
    const Puzzle clues = WithGaps(square, share, random_);
    const SearchResult result = Find(clues, 50'000);
    std::vector<Puzzle> found;
    if (const auto* one = std::get_if<OneSolution>(&result)) found = {one->Solved};
    if (const auto* two = std::get_if<SeveralSolutions>(&result)) found = {two->First, two->Second};
    EXPECT_FALSE(found.empty()) << term << " " << order;
    for (const Puzzle& solved : found) {
      EXPECT_TRUE(Fits(solved, clues));
      EXPECT_EQ(slow::WhyNotNormal(RowsOf(solved.Cells)), "");
      EXPECT_EQ(slow::Classifier(slow::IntsOf(RowsOf(solved.Cells))).Run()[term], true)
          << term << " " << order;
    }
  }
}

TEST_F(SearchTest, StopsWhenItIsTold) {
  const Puzzle empty = PuzzleFrom("0 0 0 0 / 0 0 0 0 / 0 0 0 0 / 0 0 0 0", 34);
  EXPECT_TRUE(std::holds_alternative<NotSettled>(Find(empty, 1)));
  EXPECT_TRUE(std::holds_alternative<NotSettled>(Solve(empty, {.Seconds = 0}, random_, stage_)));
  NotingStage stage;
  stage.YieldsLeft = 10;
  EXPECT_THROW(Solve(empty, {}, random_, stage), Superseded);
  SeededRandom a(1), b(1);
  const Puzzle large = WithGaps(Bordered(16, random_), 20, random_);
  const auto first = std::get<SeveralSolutions>(Solve(large, {.Nodes = 3000}, a, stage_));
  const auto again = std::get<SeveralSolutions>(Solve(large, {.Nodes = 3000}, b, stage_));
  EXPECT_EQ(first.First.Cells, again.First.Cells) << "the same seed, the same search";
  stage.YieldsLeft = 50;
  EXPECT_THROW(Solve(large, {}, a, stage), Superseded);
  Puzzle huge{Square<std::int64_t>(50), NormalTotal(50)};
  EXPECT_TRUE(std::holds_alternative<SeveralSolutions>(Find(huge))) << "by construction";
}

TEST(Puzzle, SaysWhatBreaksTheRules) {
  const auto why = [](const StoredSquare& square, bool limit = false) {
    const auto puzzle = PuzzleOf(square, limit);
    const auto* against = std::get_if<AgainstRules>(&puzzle);
    return against ? against->Why : "";
  };
  StoredSquare square{.Cells = {3, {8, {}, 6, {}, 5, {}, {}, {}, 2}}, .Asked = Rules::Normal};
  EXPECT_EQ(why(square), "");
  EXPECT_EQ(why({.Cells = {3, {20, {}, {}, {}, {}, {}, {}, {}, {}}},
                 .Total = 15,
                 .Asked = Rules::Positive}),
            "20 in row 1, column 1 is more than the sum leaves for one cell, 13");
  square.Cells[4] = 8;
  EXPECT_EQ(why(square), "8 in row 2, column 2 is also in row 1, column 1");
  square.Cells[4] = 10;
  EXPECT_EQ(why(square), "10 in row 2, column 2 is not one of the numbers 1 to 9");
  square.Total = 16;
  EXPECT_EQ(why(square), "the sum 16 does not fit the numbers 1 to 9, whose lines add up to 15");
  square.Asked = Rules::Positive;
  EXPECT_EQ(why(square), "");
  EXPECT_EQ(why(square, true), "10 in row 2, column 2 is not one of the numbers 1 to 9");
  square.Cells[4] = 0.5;
  EXPECT_EQ(why(square), "0.5 in row 2, column 2 is not a whole number of 1 or more");
  square.Total = 15.5;
  EXPECT_EQ(why(square), "the sum 15.5 is not possible here with whole numbers of 1 or more");
}

}  // namespace
}  // namespace numorra
