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
#include "support/studies.h"

namespace numorra {
namespace {

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
        ("46 81 117 102 15 76 200 203 / 19 60 232 175 54 69 153 78 / 216 161 17 52 171 90 58 75 / "
         "135 114 50 87 184 189 13 68 / 150 261 45 38 91 136 92 27 / 119 104 108 23 174 225 57 30 "
         "/ "
         "116 25 133 120 51 26 162 207 / 39 34 138 243 100 29 105 152")})
    ExpectAgreement(ParseRows(rows));
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
