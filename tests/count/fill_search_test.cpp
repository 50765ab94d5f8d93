#include "count/fill_search.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

#include "app/ports/build_stage.h"
#include "count/count_estimate.h"
#include "support/slow_checker.h"

namespace numorra {
namespace {

std::vector<Square<int>> AllOf(const CountWish& wish) {
  SilentStage stage;
  std::vector<Square<int>> squares;
  FillSearch(wish, stage).Run([&](const Square<int>& square) {
    squares.push_back(square);
    return true;
  });
  return squares;
}

const Term* TermOf(const std::string& name) {
  for (const Term& term : Terms()) {
    if (term.Name == name) return &term;
  }
  return nullptr;
}

TEST(FillSearchTest, FindsTheKnownNumbers) {
  const auto empty = [](int order) { return Square<int>(order); };
  const auto with = [](int order, int cell, int number) {
    Square<int> givens(order);
    givens[cell] = number;
    return givens;
  };
  struct {
    CountWish Wish;
    std::size_t Count;
  } const kKnown[] = {
      {{empty(3)}, 1},
      {{.Givens = empty(3), .AllImages = true}, 8},
      {{.Givens = empty(3), .SemiMagic = true}, 9},
      {{empty(4)}, 880},
      {{.Givens = empty(4), .SemiMagic = true}, 68688},
      {{empty(4), LineKind::Associative}, 48},
      {{empty(4), LineKind::MostPerfect}, 48},
      {{.Givens = empty(4), .Terms = {TermOf("pandiagonal")}}, 48},
      {{.Givens = empty(4), .Terms = {TermOf("associative"), TermOf("pandiagonal")}}, 0},
      {{empty(4), LineKind::Ultramagic}, 0},
      {{empty(5), LineKind::Associative}, 48544},
      {{empty(5), LineKind::Pandiagonal}, 3600},
      {{.Givens = empty(5), .Kind = LineKind::Pandiagonal, .AllImages = true}, 28800},
      {{empty(5), LineKind::Ultramagic}, 16},
      {{with(5, 12, 13), LineKind::Ultramagic}, 16},
      {{with(5, 12, 12), LineKind::Ultramagic}, 0},
      {{with(6, 0, 1), LineKind::Associative}, 0},
      // A square holds 8 in a cell as it is, mirrored in no line through the cell.
      {{with(3, 0, 8)}, 1},
      {{.Givens = with(3, 0, 8), .AllImages = true}, 2},
      {{with(3, 1, 8)}, 0},
      {{with(3, 1, 9)}, 1},
  };
  for (const auto& [wish, count] : kKnown)
    EXPECT_EQ(AllOf(wish).size(), count) << &wish - &kKnown[0].Wish;
}

TEST(FillSearchTest, FindsEachSquareOfOrder4OnceInReadingOrder) {
  const auto squares = AllOf({Square<int>(4)});
  EXPECT_TRUE(std::is_sorted(squares.begin(), squares.end()));
  std::map<std::vector<int>, int> types;  // by the places of 17 - number, the same for all images
  std::set<Square<int>> images;
  for (const auto& square : squares) {
    slow::Rows rows(4);
    for (int cell = 0; cell < 16; ++cell)
      rows[static_cast<std::size_t>(cell / 4)].push_back(square[cell]);
    EXPECT_EQ(slow::WhyNotNormal(rows), "");
    std::vector<int> least;
    for (const CellMap& map : EightImages(4)) {
      const auto image =
          SquareOf(4, [&](int cell) { return square[map[static_cast<std::size_t>(cell)]]; });
      images.insert(image);
      std::vector<int> partners;
      for (const int number : image) {
        partners.push_back(
            static_cast<int>(std::find(image.begin(), image.end(), 17 - number) - image.begin()));
      }
      if (least.empty() || partners < least) least = partners;
    }
    ++types[least];
  }
  EXPECT_EQ(images.size(), 7040U);
  std::multiset<int> sizes;
  for (const auto& [partners, count] : types)
    sizes.insert(count);
  EXPECT_EQ(sizes, (std::multiset<int>{8, 8, 48, 48, 48, 56, 56, 56, 56, 96, 96, 304}))
      << "Dudeney's twelve types";
}

TEST(CountEstimateTest, IsNearTheTrueCount) {
  const struct {
    int Order;
    LineKind Kind;
    std::int64_t Samples;
    double Count;
  } kKnown[] = {{3, LineKind::Magic, 1000, 1},
                {4, LineKind::Magic, 50'000, 880},
                {5, LineKind::Magic, 50'000, 275305224},
                {5, LineKind::Associative, 20'000, 48544},
                {6, LineKind::Magic, 50'000, 17753889197660635632.0}};
  TickingClock clock(1);
  ClockSeededRandom random(clock);
  SilentStage stage;
  for (const auto& [order, kind, samples, count] : kKnown) {
    const auto estimate = EstimateCount({Square<int>(order), kind}, 1e6, samples, random, stage);
    EXPECT_NEAR(estimate.Squares, count, 4 * estimate.Error) << order;
    EXPECT_LT(estimate.Error, 0.2 * count) << order;
  }
}

}  // namespace
}  // namespace numorra
