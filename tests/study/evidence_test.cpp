#include <gtest/gtest.h>

#include "support/studies.h"

namespace numorra {
namespace {

struct Told {
  const char* Rows;
  const char* Term;
  Answer Says;
  const char* Why;
  std::size_t Cells;
};

TEST(Study, ShowsEvidence) {
  const Told cases[] = {
      {"8 1 6 / 3 5 7 / 4 9 3", "magic", Answer::Fails, "row 3 adds up to 16, not 15", 3},
      {"8 1 6 / 3 5 7 / 4 9 2", "pandiagonal", Answer::Fails,
       "the broken diagonal that falls from row 1, column 2 adds up to 12, not 15", 3},
      {"8 1 6 / 3 5 7 / 4 9 2", "associative", Answer::Holds,
       "every number and the one opposite it add up to 10", 2},
      {"8 1 6 / 3 5 7 / 4 9 2", "compact", Answer::DoesNotApply,
       "the term is defined only for even orders", 0},
      {"8 1 6 / 3 5 7 / 4 9 8", "normal", Answer::Fails, "8 occurs twice, 2 is missing", 2},
      {"8 1 6 / 3 0.5 7 / 4 9 2", "normal", Answer::Fails,
       "0.5 in row 2, column 2 is not one of the numbers 1 to 9", 1},
      {"8 1 6 / 3 5 7 / 4 19 2", "consecutive", Answer::Fails, "the next number after 8 is 19", 2},
      {"7.5 0.5 5.5 / 2.5 4.5 6.5 / 3.5 8.5 1.5", "consecutive", Answer::Holds,
       "its numbers are those from 0.5 to 8.5 in steps of 1", 0},
      {"5.5 1 4 / 2.5 3.5 9.5 / 1.5 7 8.5", "antimagic", Answer::Fails,
       "the next sum after 9 is 9.5, that of column 1", 3},
      {"2.5 5.5 2.5 / 9.5 4.5 1.5 / 5.5 3.5 7.5", "antimagic", Answer::Holds,
       "the sums of its lines are those from 10.5 to 17.5 in steps of 1", 0},
      {"0.8 0.1 0.6 / 0.3 0.5 0.7 / 0.4 0.9 0.2", "magic", Answer::Holds,
       "all rows, columns and both main diagonals add up to 1.5", 0},
      {"0.8 0.1 0.6 / 0.3 0.5 0.7 / 0.4 0.9 0.2", "bimagic", Answer::Fails,
       "the squares in row 2 add up to 0.83, those in row 1 to 1.01", 3},
      {"1e-13 1e-13 1e-13 / 1e-13 1e-13 1e-13 / 1e-13 1e-13 1e-13", "magic", Answer::Holds,
       "all rows, columns and both main diagonals add up to 0.0000000000003", 0},
      {"99999999999999 0.0001 0 / 0 0 0 / 0 0 0", "magic", Answer::TooLarge,
       "the numbers have too many digits to be added exactly", 0},
      {"0.9 0.00000000000001 5 / 1 2 3 / 4 6 7", "bimagic", Answer::TooLarge,
       "the numbers have too many digits to be added exactly", 0},
      {"400000001 1 1 / 1 1 1 / 1 1 1", "bimagic", Answer::Fails,
       "not magic: row 1 adds up to 400000003, not 3", 3},
      {"9999999999 9999999999 9999999999 / 9999999999 9999999999 9999999999 / 9999999999 "
       "9999999999 9999999999",
       "trimagic", Answer::Holds,
       "the cubes in every line add up to 2999999999100000000089999999997", 0},
      {"9999999992 9999999999 9999999994 / 9999999997 9999999995 9999999993 / 9999999996 "
       "9999999991 9999999998",
       "bimagic", Answer::Fails,
       "the squares in row 2 add up to 299999999700000000083, those in row 1 to "
       "299999999700000000101",
       3},
      {"-1000000000001 -1000000000001 -1000000000001 / -1000000000001 -1000000000001 "
       "-1000000000001 / -1000000000001 -1000000000001 -1000000000001",
       "trimagic", Answer::TooLarge,
       "the cubes of numbers like -1000000000001 are too large to be added exactly", 0},
      {"17 3 13 / 7 11 15 / 9 19 5", "arithmetic progression", Answer::Holds,
       "its numbers are those from 3 to 19 in steps of 2", 0},
      {"8 1 6 / 3 5 7 / 4 9 2", "arithmetic progression", Answer::Holds,
       "its numbers are those from 1 to 9 in steps of 1, so they are consecutive", 0},
      {"8 1 6 / 3 5 7 / 4 10.5 2", "arithmetic progression", Answer::Fails,
       "the step from 8 to 10.5 is 2.5, that from 1 to 2 is 1", 2},
      {"-1 3 -2 / -1 0 1 / 2 -3 1", "zero-centred", Answer::Holds,
       "its numbers, from -3 to 3, are symmetric about 0", 0},
      {"-1 2.5 -2 / -1 0 1 / 2 -4 1", "zero-centred", Answer::Fails, "-4 occurs more often than 4",
       1},
      {"8 1 6 / 3 5 7 / 4 9 2", "zero-centred", Answer::Fails, "9 occurs more often than -9", 1},
      {"17 89 71 / 113 59 5 / 47 29 101", "prime", Answer::Holds,
       "all its numbers are primes, with the magic constant 177", 0},
      {"8 1 6 / 3 5 7 / 4 9 2", "regular", Answer::Holds,
       "each first and each second digit occurs once in every row and column", 0},
      {"1 12 8 13 / 14 7 11 2 / 15 6 10 3 / 4 9 5 16", "regular", Answer::Fails,
       "in column 1, 14 and 15 have the same first digit, 3", 2},
      {"2 256 8 / 64 16 4 / 32 1 128", "multiplicative", Answer::Holds,
       "the numbers in every row, column and main diagonal have the product 4096", 0},
      {"0.2 25.6 0.8 / 6.4 1.6 0.4 / 3.2 0.1 12.8", "multiplicative", Answer::Holds,
       "the numbers in every row, column and main diagonal have the product 4.096", 0},
      {"-2 256 8 / 64 16 4 / 32 1 128", "multiplicative", Answer::Fails,
       "row 1 and row 2 have different products: -4096 and 4096", 3},
      {"2 256 8 / 64 0 4 / 32 1 128", "multiplicative", Answer::Fails,
       "0 in row 2, column 2 makes the products 0", 1},
      {"1000000000000000 1000000000000000 1000000000000000 / 1 1 1 / 1 1 1", "multiplicative",
       Answer::Fails, "row 1 and row 2 have different products: a number of 46 digits and 1", 3},
      {"8 1 6 / 3 5 7 / 4 9 2", "Franklin", Answer::DoesNotApply,
       "the term is defined only for orders from 8 on that are multiples of 4", 0},
      {"1 2 3 4 5 / 6 7 8 9 10 / 11 12 13 14 15 / 16 17 18 19 20 / 21 22 23 24 25", "bordered",
       Answer::Fails, "in the 3 x 3 square in the middle, row 2 adds up to 39, row 1 to 24", 3},
      {"8 1 6 / 3 5 7 / 4 9 2", "knight's tour", Answer::Fails,
       "from 3 in row 2, column 1 to 4 in row 3, column 1 is not a knight's move", 2},
      {"8 1 6 / 3 5 7 / 4 9 8", "knight's tour", Answer::Fails, "not consecutive: 8 occurs twice",
       2},
      {"1 14 9 20 3 / 24 19 2 15 10 / 13 8 25 4 21 / 18 23 6 11 16 / 7 12 17 22 5", "knight's tour",
       Answer::Holds,
       "each number is a knight's move from the one before; the tour is open, as the first is not "
       "one from the last",
       2},
  };
  for (const Told& told : cases) {
    const Judgement found = Find(StudyOf(ParseRows(told.Rows)), told.Term);
    EXPECT_EQ(found.Says, told.Says) << told.Term << " of " << told.Rows;
    EXPECT_EQ(found.Why, told.Why);
    EXPECT_EQ(found.Cells.size(), told.Cells) << told.Term << " of " << told.Rows;
  }
}

}  // namespace
}  // namespace numorra
