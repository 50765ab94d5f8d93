#include "puzzle/fresh_square.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "study/images.h"
#include "study/report.h"
#include "support/boards.h"
#include "support/soak.h"
#include "support/squares_of_order4.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

class FreshSquareTest : public testing::Test {
 protected:
  Square<double> Draw(const SquareWish& wish, Random& random) {
    const auto square = FreshSquare(wish, random, stage_);
    return square ? Square<double>(square->Cells) : Square<double>();
  }

  std::size_t ClassesIn(int draws, const SquareWish& wish) {
    std::set<Square<double>> forms;
    for (int draw = 0; draw < draws; ++draw)
      forms.insert(StandardForm(Draw(wish, random_)));
    return forms.size();
  }

  SeededRandom random_{5};
  SilentStage stage_;
};

/// How far the counts are from the expected ones, in standard deviations of the chi-square of that
/// many.
template <class What>
double DeviationsOff(const std::map<What, std::pair<int, double>>& counts) {
  double chiSquare = 0;
  for (const auto& [what, numbers] : counts) {
    const auto& [count, expected] = numbers;
    chiSquare += (count - expected) * (count - expected) / expected;
  }
  const double degrees = static_cast<double>(counts.size()) - 1;
  return (chiSquare - degrees) / std::sqrt(2 * degrees);
}

constexpr double kMostDeviations = 5;

TEST_F(FreshSquareTest, IsMagic) {
  for (const int order : {3, 4, 5, 6, 7, 8, 10, 15, 24, 50}) {
    EXPECT_EQ(slow::WhyNotNormal(RowsOf(Draw({order}, random_))), "");
    for (const int base : {2, 3, 20}) {
      for (const bool limit : {false, true}) {
        const int total = order * base + (order == 3 || limit ? 0 : 1);
        const auto square = FreshSquare({order, total, limit}, random_, stage_);
        ASSERT_TRUE(square);
        const Square<std::int64_t>& numbers = square->Cells;
        EXPECT_EQ(square->Target, limit ? std::min(total, 5 * order) : total);
        EXPECT_EQ(slow::WhyNotMagic(RowsOf(numbers), static_cast<double>(square->Target)), "");
        const auto [least, most] = std::minmax_element(numbers.begin(), numbers.end());
        EXPECT_GE(*least, 1);
        EXPECT_LT(*least, *most) << "a flat square of order " << order;
        EXPECT_TRUE(!limit || *most <= 9);
      }
    }
  }
}

/// As many classes as chance has them, less a little.
TEST_F(FreshSquareTest, IsAnother) {
  EXPECT_GE(ClassesIn(500, {4}), 340U);
  EXPECT_EQ(ClassesIn(60, {5}), 60U);
  EXPECT_EQ(ClassesIn(20, {8}), 20U);
  EXPECT_GE(ClassesIn(400, {3, 60}), 85U);
  EXPECT_GE(ClassesIn(400, {4, 20}), 390U);
  EXPECT_GE(ClassesIn(400, {4, 20, true}), 380U);
  EXPECT_EQ(ClassesIn(100, {5, 15}), 100U);
}

TEST_F(FreshSquareTest, RepeatsFromASeedAndStops) {
  SeededRandom a(3), b(3), c(4);
  const Square<double> first = Draw({6}, a);
  EXPECT_EQ(Draw({6}, b), first);
  EXPECT_NE(Draw({6}, c), first);
  NotingStage stopping;
  stopping.YieldsLeft = 3;
  EXPECT_THROW(FreshSquare({40}, random_, stopping), Superseded);
  for (const double number : {0.0, 0.5, 1 - 0x1p-24}) {
    ScriptedRandom stuck({number});
    EXPECT_EQ(slow::WhyNotNormal(RowsOf(Draw({5}, stuck))), "");
  }
}

TEST_F(FreshSquareTest, IsAnySquareOfOrder4AsLikelyAsTheOthers) {
  const Soak soak;
  if (soak.Minutes == 0) return;
  constexpr int kEach = 10;
  SeededRandom random(soak.Seed);
  std::map<Square<double>, std::pair<int, double>> counts;
  for (const slow::Rows& rows : slow::ImagesOfOrder4()) {
    counts[SquareFrom(rows)] = {0, kEach};
  }
  ASSERT_EQ(counts.size(), 7040U);
  for (int draw = 0; draw < 7040 * kEach; ++draw)
    ++counts.at(Draw({4}, random)).first;
  EXPECT_LT(std::abs(DeviationsOff(counts)), kMostDeviations);
}

/// The centres of all squares of order 5 have been counted, and so have the associative ones. Goes
/// on for half of the soak at most.
TEST_F(FreshSquareTest, HasTheCentresAndTheKindsOfOrder5AsOftenAsAllSquaresHave) {
  Soak soak;
  soak.Minutes /= 2;
  if (soak.Minutes == 0) return;
  constexpr double kClasses[] = {1091448, 1366179, 1914984, 1958837, 2431806, 2600879, 3016881,
                                 3112161, 3472540, 3344034, 3933818, 3784618, 4769936};
  constexpr double kAssociative = 48544.0 / 275305224;
  constexpr int kEnough = 50'000;
  SeededRandom random(soak.Seed);
  std::map<double, std::pair<int, double>> centres;
  int draws = 0;
  int associative = 0;
  for (; draws < kEnough && soak.Goes(); ++draws) {
    const Square<double> numbers = Draw({5}, random);
    ++centres[numbers[12]].first;
    associative += JudgeAssociative(Facts(NumberSquare(numbers))) ? 1 : 0;
  }
  double all = 0;
  for (int centre = 1; centre <= 25; ++centre)
    all += kClasses[std::min(centre, 26 - centre) - 1];
  for (int centre = 1; centre <= 25; ++centre)
    centres[centre].second = draws * kClasses[std::min(centre, 26 - centre) - 1] / all;
  EXPECT_LT(std::abs(DeviationsOff(centres)), kMostDeviations);
  const double expected = draws * kAssociative;
  EXPECT_LT(std::abs(associative - expected), kMostDeviations * std::sqrt(expected) + 1);
  std::printf("%d squares of order 5, %d of them associative\n", draws, associative);
}

}  // namespace
}  // namespace numorra
