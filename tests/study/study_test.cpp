#include <cstdint>
#include <gtest/gtest.h>
#include <set>

#include "study/famous.h"
#include "study/images.h"
#include "study/report.h"
#include "study/special.h"
#include "support/boards.h"
#include "support/slow_classifier.h"
#include "support/squares_of_order4.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

Report StudyOf(const slow::Rows& rows) {
  return Study(NumberSquare(SquareFrom(rows)));
}

Judgement Find(const Report& report, const std::string& term) {
  for (const Property& property : report.Properties) {
    if (property.What->Name == term) return property.Found;
  }
  ADD_FAILURE() << "no term " << term;
  return {};
}

slow::Answers AnswersOf(const Report& report) {
  slow::Answers answers;
  for (const auto& [term, found] : report.Properties) {
    answers[term->Name] = found.Says == Answer::Holds   ? std::optional(true)
                          : found.Says == Answer::Fails ? std::optional(false)
                                                        : std::nullopt;
  }
  return answers;
}

void ExpectAgreement(const slow::Rows& rows) {
  const slow::Answers expected = slow::Classify(rows);
  const Report report = StudyOf(rows);
  const slow::Answers found = AnswersOf(report);
  ASSERT_EQ(found.size(), expected.size());
  for (const auto& [term, answer] : expected)
    EXPECT_EQ(found.at(term), answer) << term << " at order " << rows.size();
  const int n = static_cast<int>(rows.size());
  for (const Property& property : report.Properties) {
    for (const Place place : property.Found.Cells)
      ASSERT_EQ(place, PlaceAt(IndexOf(place, n), n)) << "outside: " << property.What->Name;
  }
}

TEST(Study, KnowsAllSquaresOfOrder4) {
  std::map<std::string, int> count;
  int census = 0;
  for (const slow::Rows& rows : slow::SquaresOfOrder4()) {
    const Report report = StudyOf(rows);
    ASSERT_EQ(report.Census, ++census);
    ASSERT_EQ(report.StandardForm, SquareFrom(rows));
    for (const auto& [term, found] : report.Properties)
      count[term->Name] += found ? 1 : 0;
    if (census % 40 == 0) ExpectAgreement(rows);
  }
  EXPECT_EQ(census, 880);
  const std::map<std::string, int> known = {
      {"magic", 880},      {"normal", 880}, {"associative", 48}, {"semi-pandiagonal", 432},
      {"pandiagonal", 48}, {"compact", 48}, {"complete", 48},    {"most-perfect", 48},
      {"ultramagic", 0},   {"bimagic", 0},  {"latin", 0},        {"prime", 0},
      {"heterosquare", 0}};
  for (const auto& [term, number] : known)
    EXPECT_EQ(count[term], number) << term;
}

/// The twelve patterns have 48, 48, 48, 96, 96, 304, 56, 56, 56, 56, 8 and 8 squares.
TEST(Study, TellsDudeneysTypes) {
  std::map<std::string, int> count;
  for (const slow::Rows& rows : slow::ImagesOfOrder4()) {
    const Report report = StudyOf(rows);
    const auto& [type, pairs] = report.Complements;
    ++count[type];
    std::map<char, double> sums;
    for (std::size_t cell = 0; cell < 16; ++cell)
      sums[pairs.at(cell / 4 * 7 + cell % 4)] += rows[cell / 4][cell % 4];
    ASSERT_EQ(sums.size(), 8U) << pairs;
    for (const auto& [letter, sum] : sums)
      ASSERT_EQ(sum, 17) << pairs;
    const auto isMirrored = [](const slow::Rows& lines) {
      return std::all_of(lines.begin(), lines.end(), [](const auto& line) {
        return line[0] + line[3] == 17 && line[1] + line[2] == 17;
      });
    };
    slow::Rows columns = rows;
    for (std::size_t r = 0; r < 4; ++r) {
      for (std::size_t c = 0; c < 4; ++c)
        columns[r][c] = rows[c][r];
    }
    EXPECT_EQ(type == "I", bool(Find(report, "pandiagonal")));
    EXPECT_EQ(type == "III", bool(Find(report, "associative")));
    EXPECT_EQ(type == "VI", isMirrored(rows) || isMirrored(columns));
    EXPECT_EQ(type == "I" || type == "II" || type == "III" || type == "IV or V",
              type != "VI" && Find(report, "semi-pandiagonal"));
  }
  for (auto& [type, images] : count)
    images /= 8;
  EXPECT_EQ(count, (std::map<std::string, int>{{"I", 48},
                                               {"II", 48},
                                               {"III", 48},
                                               {"IV or V", 192},
                                               {"VI", 304},
                                               {"VII to X", 224},
                                               {"XI or XII", 16}}));
  EXPECT_EQ(StudyOf(ParseRows("8 1 6 / 3 5 7 / 4 9 2")).Complements.Pairs, "");
}

/// Opposite cells add up to 26, so a b c d e / f g h i j / k l settle the square; of these the
/// lines settle all but six.
TEST(Study, FindsTheSixteenUltramagicSquaresOfOrder5) {
  int found = 0;
  const auto free = [](std::initializer_list<int> numbers) {
    std::uint64_t taken = 0;
    for (const int number : numbers) {
      if (number < 1 || number > 25 || number == 13 || (taken >> number & 1) != 0) return false;
      taken |= std::uint64_t{1} << number | std::uint64_t{1} << (26 - number);
    }
    return true;
  };
  const auto count = [&](int a, int b, int c, int d, int e, int f, int g) {
    const int k = b + f - g - c + 13;
    const int j = k + a + f - e - 13;
    const int i = k + j + d - c - 13;
    const int h = 65 - f - g - i - j;
    const int l = 13 - b - g + d + i;
    if (!free({a, b, c, d, e, f, g, h, i, j, k, l})) return;
    slow::Rows rows = {{}, {}, {}, {}, {}};
    for (const int number : {a, b, c, d, e})
      rows[0].push_back(number);
    for (const int number : {f, g, h, i, j})
      rows[1].push_back(number);
    for (const int number : {k, l, 13, 26 - l, 26 - k})
      rows[2].push_back(number);
    for (const std::size_t row : {3U, 4U}) {
      for (std::size_t column = 0; column < 5; ++column)
        rows[row].push_back(26 - rows[4 - row][4 - column]);
    }
    const Report report = StudyOf(rows);
    if (Find(report, "ultramagic") && report.StandardForm == SquareFrom(rows)) ++found;
  };
  for (int a = 1; a < 13; ++a) {
    for (int b = 1; b <= 25; ++b) {
      for (int c = 1; c <= 25; ++c) {
        for (int d = 1; d <= 25; ++d) {
          const int e = 65 - a - b - c - d;
          if (!free({a, b, c, d, e})) continue;
          for (int f = b + 1; f <= 25; ++f) {
            for (int g = 1; g <= 25; ++g)
              count(a, b, c, d, e, f, g);
          }
        }
      }
    }
  }
  EXPECT_EQ(found, 16);
}

TEST(Study, AgreesWithTheSlowClassifier) {
  SeededRandom random(3);
  for (int order = 3; order <= 50; ++order) {
    for (const SpecialKind& kind : kSpecialKinds) {
      if (!kind.WhyNone(order).empty()) continue;
      slow::Rows rows = RowsOf(kind.Build(order, random));
      EXPECT_EQ(slow::WhyNotNormal(rows), "") << kind.Term << " of order " << order;
      EXPECT_EQ(slow::Classify(rows)[kind.Term], true) << kind.Term << " of order " << order;
      ExpectAgreement(rows);
      const auto at = [&] { return static_cast<std::size_t>(random.Between(0, order - 1)); };
      std::swap(rows[at()][at()], rows[at()][at()]);
      ExpectAgreement(rows);
    }
    slow::Rows noise(static_cast<std::size_t>(order));
    for (auto& row : noise) {
      for (int c = 0; c < order; ++c)
        row.push_back(random.Between(-3, order * order));
    }
    ExpectAgreement(noise);
  }
  for (const char* rows :
       {"1 2 3 / 2 3 1 / 3 1 2", "2 2 2 / 2 2 2 / 2 2 2", "17 89 71 / 113 59 5 / 47 29 101",
        "2 15 5 13 / 16 3 7 12 / 9 8 14 1 / 6 4 11 10", "9 8 7 / 2 1 6 / 3 4 5",
        "0 0 0 / 0 0 0 / 0 0 1", "1 2 3 / 4 5 6 / 7 8 9", "7 9 8 / 9 8 7 / 8 7 9",
        "2 256 8 / 64 16 4 / 32 1 128", "2 -256 8 / -64 16 -4 / 32 1 128", "-1 1 / 1 -1",
        "46 81 117 102 15 76 200 203 / 19 60 232 175 54 69 153 78 / 216 161 17 52 171 90 58 75 / "
        "135 114 50 87 184 189 13 68 / 150 261 45 38 91 136 92 27 / 119 104 108 23 174 225 57 30 / "
        "116 25 133 120 51 26 162 207 / 39 34 138 243 100 29 105 152"})
    ExpectAgreement(ParseRows(rows));
}

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

TEST(Study, TellsWhatIsShortEnoughToBeRead) {
  for (const int order : {10, 11}) {
    const auto numbers =
        SquareOf(order, [](int number) { return number < 24 ? number / 2 : number; });
    std::map<std::string, std::string> details;
    for (const auto& [name, text] : StudyOf(RowsOf(numbers)).Details)
      details[name] = text;
    EXPECT_EQ(details["repeated"], "0, 1, 2, 3, 4, 5, 6, 7, 8, 9 and 2 more");
    EXPECT_EQ(details.contains("standard form"), order == 10);
  }
}

TEST(Study, TellsPrimesFromOthers) {
  for (const double prime : {2.0, 3.0, 97.0, 99999999999973.0})
    EXPECT_TRUE(Find(StudyOf({{prime, prime, prime}, {prime, 5, 7}, {11, 13, 17}}), "prime"));
  // Strong pseudoprimes to the bases 2, 3, 5, 7, and a product of two large primes.
  for (const double other : {1.0, 0.0, -7.0, 2.5, 3215031751.0, 9999991.0 * 9999973.0})
    EXPECT_FALSE(Find(StudyOf({{other, 2, 2}, {2, 2, 2}, {2, 2, 2}}), "prime")) << other;
}

TEST(Famous, AreWhatTheirStoriesSay) {
  EXPECT_EQ(FamousSquares().size(), 12U);
  const char* const terms[] = {"associative", "most-perfect",  "concentric", "bordered",
                               "bimagic",     "knight's tour", "Franklin"};
  for (const FamousSquare& famous : FamousSquares()) {
    const slow::Rows rows = RowsOf(famous.Numbers);
    ExpectAgreement(rows);
    const slow::Answers is = slow::Classify(rows);
    EXPECT_EQ(slow::LineTotals(rows).front(), famous.Total);
    EXPECT_EQ(is.at("semi-magic"), true) << famous.Name;
    const std::string story = famous.Story;
    EXPECT_EQ(is.at("magic"), story.find("semi-magic") == std::string::npos) << famous.Name;
    for (const char* term : terms) {
      const bool said = story.find(term) != std::string::npos;
      EXPECT_TRUE(!said || is.at(term) == true) << famous.Name << term;
    }
    EXPECT_EQ(StudyOf(rows).Details.front().second, story);
  }
}

}  // namespace
}  // namespace numorra
