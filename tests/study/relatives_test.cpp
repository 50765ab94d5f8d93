#include "study/relatives.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <set>

#include "study/images.h"
#include "study/kept_relatives.h"
#include "study/special.h"
#include "support/boards.h"
#include "support/slow_classifier.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

TEST(Relatives, AreOtherSquaresOfTheFamily) {
  SeededRandom random(5);
  for (const int order : {3, 4, 5, 10}) {
    Square<double> square(order);
    std::iota(square.begin(), square.end(), 1.0);  // which is associative
    if (order != 10) square = AssociativeSquare(order, random);
    std::set<Square<double>> forms;
    for (int draw = 0; draw < 100; ++draw) {
      const auto varied = Varied(square, random);
      ASSERT_TRUE(varied);
      EXPECT_NE(*varied, square);
      EXPECT_EQ(slow::Classify(RowsOf(*varied))["associative"], true);
      if (order == 4 || order == 5) {
        EXPECT_EQ(slow::WhyNotNormal(RowsOf(*varied)), "");
      }
      forms.insert(StandardForm(*varied));
    }
    // Order 3 only turns; orders 4 and 5 have four classes, of which one is shown.
    EXPECT_TRUE(order == 3   ? forms.size() == 1
                : order < 10 ? forms.size() == 3
                             : forms.size() > 90)
        << forms.size() << " at order " << order;
    EXPECT_EQ(forms.count(StandardForm(square)), order == 3 ? 1U : 0U);
  }
  EXPECT_EQ(Varied(Square<double>(3, 7.0), random), std::nullopt);
  EXPECT_EQ(ComplementOf({2, {0.1, 0.25, 3, 3}}), Square<double>(2, {3, 2.85, 0.1, 0.1}));
}

/// What a square's relatives have to keep, by the tests' own judgement.
std::set<std::string> KindOf(const slow::Rows& rows) {
  std::set<std::string> kind;
  for (const auto& [term, holds] : slow::Classify(rows)) {
    const bool ofNumbers = std::set<std::string>{"normal",
                                                 "distinct",
                                                 "consecutive",
                                                 "prime",
                                                 "heterosquare",
                                                 "antimagic",
                                                 "latin",
                                                 "arithmetic progression",
                                                 "zero-centred",
                                                 "knight's tour",
                                                 "regular",
                                                 "multiplicative",
                                                 "addition-multiplication"}
                               .contains(term);
    if (holds == true && !ofNumbers) kind.insert(term);
  }
  return kind;
}

TEST(Relatives, KeepWhatTheSquareIs) {
  struct Case {
    const char* Kind;
    int Order;
    std::set<std::string> Offered;
  };
  const std::string round = "MoveRoundx", times = "MultiplyPlacesx", lines = "DiagonalsAsLinesx",
                    opposites = "ExchangeOppositesx", halves = "ExchangeHalvesx",
                    rings = "ExchangeRingsx", add = "AddToAllx", multiply = "MultiplyAllx";
  const Case cases[] = {{"pandiagonal", 7, {round, times, lines}},
                        {"pandiagonal", 4, {round, halves}},
                        {"most-perfect", 8, {round, times, halves}},
                        {"most-perfect", 12, {round, times, halves}},
                        {"associative", 4, {opposites}},
                        {"associative", 7, {times, opposites}},
                        {"associative", 8, {times, opposites}},
                        {"ultramagic", 7, {times, lines}},
                        {"ultramagic", 9, {times, lines}},
                        {"bordered", 5, {rings}},
                        {"bordered", 8, {rings}}};
  SeededRandom random(9);
  for (const Case& c : cases) {
    const auto square = FindSpecialKind(c.Kind)->Build(c.Order, random);
    const std::set<std::string> kind = KindOf(RowsOf(square));
    std::set<std::string> offered;
    for (const Relative* const relative : RelativesOf(square)) {
      offered.insert(relative->Name);
      const auto drawn = DrawRelative(*relative, square, random);
      ASSERT_TRUE(drawn) << relative->Name << " of " << c.Kind << " " << c.Order;
      EXPECT_NE(StandardForm(*drawn), StandardForm(square));
      const std::set<std::string> is = KindOf(RowsOf(*drawn));
      EXPECT_TRUE(std::includes(is.begin(), is.end(), kind.begin(), kind.end()))
          << relative->Name << " of " << c.Kind << " " << c.Order;
      EXPECT_EQ(slow::WhyNotNormal(RowsOf(*drawn)).empty(), relative->SameNumbers);
    }
    std::set<std::string> others = c.Offered;
    if (!kind.contains("most-perfect")) others.insert(add);
    if (!kind.contains("most-perfect") && !kind.contains("bordered")) others.insert(multiply);
    EXPECT_EQ(offered, others) << c.Kind << " " << c.Order;
  }
}

/// Sums that are exact stay so, and no number gets longer than a cell takes.
TEST(Relatives, AddAndMultiplyDecimals) {
  SeededRandom random(2);
  const Square<double> tenths(3, {0.8, 0.1, 0.6, 0.3, 0.5, 0.7, 0.4, 0.9, 0.2});
  const auto offered = RelativesOf(tenths);
  ASSERT_EQ(offered.size(), 2U);
  for (const Relative* const relative : offered) {
    auto drawn = *DrawRelative(*relative, tenths, random);
    for (double& number : drawn) {
      EXPECT_DOUBLE_EQ(10 * number, std::round(10 * number));
      number = std::round(10 * number);
    }
    EXPECT_EQ(slow::Classify(RowsOf(drawn))["magic"], true);
  }
  const auto large = SquareOf(3, [&](int cell) { return 99'999'999'999'990 + 10 * tenths[cell]; });
  EXPECT_TRUE(RelativesOf(large).empty());
  EXPECT_TRUE(RelativesOf({3, {1, 2, 3, 4, 5, 6, 7, 8, 9}}).empty()) << "a square of no kind";
}

}  // namespace
}  // namespace numorra
