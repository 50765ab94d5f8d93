#include <gtest/gtest.h>
#include <map>
#include <set>

#include "generate/construction.h"
#include "support/boards.h"
#include "support/slow_classifier.h"
#include "support/stand_ins.h"
#include "support/told_walk.h"

namespace numorra {
namespace {

TEST(Constructions, MakeMagicSquaresOfEveryOrderTheyClaim) {
  const std::map<std::string, bool (*)(int)> claims = {
      {"stepping", [](int n) { return n % 2 == 1; }},
      {"lozenge", [](int n) { return n % 2 == 1; }},
      {"knight", [](int n) { return n % 2 == 1 && n > 3; }},
      {"quadrants", [](int n) { return n % 4 == 2; }},
      {"borders", [](int n) { return n > 4; }},
      {"latin", [](int n) { return n % 4 != 2; }},
      {"composite",
       [](int n) {
         int products = 0;
         for (int m = 3; m < n; ++m)
           products += n % m == 0 && n / m > 2 ? 1 : 0;
         return products > 0;
       }},
      {"lux", [](int n) { return n % 4 == 2; }},
      {"marks", [](int n) { return n % 4 == 0; }}};
  SeededRandom random(3);
  for (const Construction* const construction : kConstructions) {
    ASSERT_EQ(FindConstruction(construction->Term), construction);
    for (int n = 3; n <= 50; ++n) {
      SCOPED_TRACE(construction->Term + std::string(" of order ") + std::to_string(n));
      const std::string why = construction->WhyNone(n);
      ASSERT_EQ(why.empty(), claims.at(construction->Term)(n)) << why;
      if (!why.empty()) {
        EXPECT_TRUE(why.ends_with(", not " + std::to_string(n))) << why;
        continue;
      }
      for (const auto& square : {ExampleOf(*construction, n), SquareBy(*construction, n, random)}) {
        ASSERT_EQ(slow::WhyNotNormal(RowsOf(square)), "");
        ExpectTrueWalk(construction->Term, square, construction->StepsOf(PlacedNumbers(square)));
        EXPECT_FALSE(WalkOf(square).empty());
      }
    }
  }
  EXPECT_EQ(FindConstruction("no such"), nullptr);
}

TEST(Constructions, MakeTheKnightsSquarePandiagonalWithoutAFactor3) {
  for (int n = 5; n < 26; n += 2) {
    const auto is =
        slow::Classifier(slow::IntsOf(RowsOf(ExampleOf(*FindConstruction("knight"), n)))).Run();
    EXPECT_EQ(is.at("pandiagonal"), n % 3 != 0) << n;
    EXPECT_EQ(is.at("associative"), true) << n;
  }
}

/// All moves of up to three cells: those that sentences name are told truly, and no others are.
TEST(Constructions, TellStepsOfEveryDirection) {
  int told = 0;
  for (int code = 0; code < 2 * 7 * 7 * 7 * 7; ++code) {
    const int n = code % 2 == 0 ? 7 : 9;
    const auto digit = [&](int place) { return code / 2 / place % 7 - 3; };
    const SaidMove usual{digit(1), digit(7)};
    const SaidMove other{digit(49), digit(343)};
    Square<double> square(n);
    int row = 0;
    int column = 0;
    for (int number = 1; number <= n * n; ++number) {
      square[row * n + column] = number;
      const SaidMove& move = number % n == 0 ? other : usual;
      row = (row + move.Rows + n) % n;
      column = (column + move.Columns + n) % n;
    }
    const PlacedNumbers placed(square);
    if (!placed.IsNormal()) continue;
    const int area = std::abs(usual.Rows * usual.Columns);
    const int straight = other.Rows * other.Columns == 0 ? std::abs(other.Rows + other.Columns) : 0;
    const bool named = area > 0 && area < 3 && straight > 0 && straight < 3;
    const char* const term = area == 1 ? "stepping" : "knight";
    const auto steps = FindConstruction(term)->StepsOf(placed);
    ASSERT_EQ(!steps.empty(), named) << code;
    if (named) ExpectTrueWalk(term, square, steps);
    told += named ? 1 : 0;
  }
  EXPECT_GT(told, 50);
}

TEST(Constructions, TakeTheirChoicesAtRandom) {
  struct Case {
    const char* Term;
    int Order;
    std::size_t Least;
  };
  const Case cases[] = {{"stepping", 9, 5},
                        {"marks", 8, 4},
                        {"latin", 8, 30},
                        {"latin", 9, 30},
                        {"composite", 12, 8}};
  SeededRandom random(5);
  for (const Case& c : cases) {
    std::set<Square<double>> drawn;
    for (int draw = 0; draw < 30; ++draw)
      drawn.insert(SquareBy(*FindConstruction(c.Term), c.Order, random));
    EXPECT_GE(drawn.size(), c.Least) << c.Term;
  }
}

TEST(Constructions, PutBordersAroundMagicSquares) {
  for (int n = 5; n <= 12; ++n) {
    const auto square = RowsOf(ExampleOf(*FindConstruction("borders"), n));
    EXPECT_EQ(slow::Classifier(slow::IntsOf(square)).Run().at("bordered"), true) << n;
  }
}

TEST(Constructions, SayWhatAClassNeedsToHear) {
  struct Case {
    const char* Term;
    int Order;
    std::size_t Step;
    const char* Sentence;
  };
  const Case cases[] = {
      {"lozenge", 5, 0, "the odd numbers 1 to 5 go up and to the right from row 3, column 1"},
      {"lozenge", 5, 6,
       "the even numbers 6 to 10 go on up and to the right from 9; what leaves the board comes in "
       "again on the opposite side"},
      {"quadrants", 6, 0, "in the upper left quarter, 1 goes to row 1, column 2"},
      {"quadrants", 10, 25,
       "the lower right quarter takes the numbers of the upper left one, each raised by 25"},
      {"quadrants", 10, 29, "rows 2 and 7 exchange their numbers in columns 1 to 2 and 10"},
      {"quadrants", 6, 13,
       "rows 2 and 5 exchange their numbers in column 2, further right as these are the middle "
       "rows"},
      {"borders", 8, 2, "in the ring of order 8, 3 to 6 go to row 8, columns 2 to 5"},
      {"borders", 8, 8,
       "in the ring of order 8, opposite each number, at corners along the diagonal, goes 65 minus "
       "it"},
      {"borders", 8, 17,
       "the middle takes 25 to 40 in reading order, but on its two diagonals counted back from 40"},
      {"borders", 7, 3, "in the ring of order 7, 8 goes to row 7, column 1"},
      {"borders", 7, 1, "in the ring of order 7, 4 to 5 go to column 1, rows 2 to 3"},
      {"latin", 5, 0,
       "row 1 takes the multiples of 5 from 0 to 20, each once, with the middle one, 10, last"},
      {"latin", 5, 7,
       "row 3 adds what row 1 adds, with all numbers moved 2 to the right, in again at the "
       "other end"},
      {"latin", 8, 8, "row 1 adds 1 to 8, each once, in any order"},
      {"latin", 12, 0,
       "row 1 takes the multiples of 12 from 0 to 132, each once, so that the last ones of its "
       "groups of 3 add up to 264"},
      {"latin", 12, 10,
       "row 11 is row 1 with neighbouring groups of 3 exchanged and the numbers of each group of 3 "
       "moved 1 to the left, in again at the other end"},
      {"composite", 15, 4, "numbering the parts: 5 goes up and to the right"},
      {"composite", 12, 9, "in part 1, row 1 takes 1 to 4, from the left"},
      {"composite", 9, 18, "part 2 takes the numbers of part 1, each raised by 9"},
      {"lozenge", 3, 1, "the odd number 5 goes to row 2, column 2"},
      {"knight", 5, 3, "4 goes two up and one to the right"},
      {"knight", 5, 5,
       "6 finds 1 in its way two up and one to the right, so it goes two to the "
       "right of 5"}};
  for (const Case& c : cases) {
    const Construction& construction = *FindConstruction(c.Term);
    const auto steps = construction.StepsOf(PlacedNumbers(ExampleOf(construction, c.Order)));
    EXPECT_EQ(steps.at(c.Step).Sentence, c.Sentence);
  }
}

}  // namespace
}  // namespace numorra
