#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "app/ports/build_stage.h"
#include "count/fill_search.h"
#include "count/order5_count.h"
#include "count/order5_squares.h"
#include "count/slice.h"
#include "support/soak.h"

namespace numorra {
namespace {

std::int64_t CountWith(const Square<int>& givens) {
  Order5Count order5(givens);
  std::int64_t count = 0;
  for (const DiagonalSet& set : order5.Sets())
    count += order5.CountOf(set);
  return count;
}

/// The squares by their centre from 1 to 13, in fours; 26 - c is in the centre of as many as c.
constexpr std::int64_t kFoursByCentre[] = {1091448, 1366179, 1914984, 1958837, 2431806,
                                           2600879, 3016881, 3112161, 3472540, 3344034,
                                           3933818, 3784618, 4769936};

TEST(Order5CountTest, AgreesWithASearch) {
  // Cells of the famous square of Euler's kind, in reading order, of which some are given.
  constexpr int kSquare[] = {17, 24, 1,  8,  15, 23, 5, 7,  14, 16, 4, 6, 13,
                             20, 22, 10, 12, 19, 21, 3, 11, 18, 25, 2, 9};
  const std::vector<std::vector<int>> kGiven = {
      {0, 6, 12, 18, 24},          // a diagonal
      {0, 24, 4, 20, 12, 6, 8},    // most of both
      {0, 1, 2, 3, 4, 5},          // a row and more
      {0, 7, 12, 14, 16, 22, 24},  // cells of all kinds
      {1, 2, 5, 7, 10, 11, 13},    // the rings alone
  };
  SilentStage stage;
  for (const auto& given : kGiven) {
    CountWish wish{Square<int>(5)};
    for (const int cell : given)
      wish.Givens[cell] = kSquare[cell];
    for (const bool allImages : {false, true}) {
      wish.AllImages = allImages;
      std::multiset<Square<int>> searched, found;
      const auto into = [](std::multiset<Square<int>>& squares) {
        return [&](const Square<int>& square) {
          squares.insert(square);
          return true;
        };
      };
      FillSearch(wish, stage).Run(into(searched));
      ForEachSquareOfOrder5(wish, stage, into(found));
      EXPECT_FALSE(found.empty());
      EXPECT_EQ(found, searched) << "given cells from " << given[1];
      if (allImages) continue;
      EXPECT_EQ(CountWith(wish.Givens), static_cast<std::int64_t>(found.size()));
    }
  }
}

TEST(Order5CountTest, SquaresAreAsManyAsKnownByCentre) {
  const bool all = Soak().Minutes > 0;
  std::int64_t whole = 0;
  for (int centre = 1; centre <= (all ? 13 : 1); ++centre) {
    Square<int> givens(5);
    givens[12] = centre;
    const std::int64_t count = CountWith(givens);
    EXPECT_EQ(count, 4 * kFoursByCentre[centre - 1]) << centre;
    whole += centre < 13 ? 2 * count : count;
  }
  EXPECT_TRUE(!all || whole == 275305224) << whole;
}

TEST(SliceTest, HalvesOfASliceAddUpToIt) {
  SilentStage stage;
  const SliceCount whole = CountSlice({7, 400}, stage);
  EXPECT_EQ(whole, CountSlice({7, 400}, stage));
  EXPECT_EQ(whole.Count, CountSlice({7, 800}, stage).Count + CountSlice({407, 800}, stage).Count);
}

TEST(SliceTest, LinesAreReadBack) {
  const SliceCount slice{{17, 512}, 549884, 0x0c7b172746a877be};
  for (const std::string& line : {TextOf(slice), JsonOf(slice)})
    EXPECT_EQ(std::get<SliceCount>(ReadSliceLine(line)), slice) << line;
  for (const char* const line :
       {"", "order 5 magic slice 17/512 count 5", "order 6 magic slice 1/2 count 5 checksum 1",
        "order 5 magic slice 3/2 count 5 checksum 1", "order 5 magic slice 1/2 count -5 checksum 1",
        "order 5 magic slice 1/2 count 5 checksum x", "{\"order\": 5}", "{"}) {
    EXPECT_TRUE(std::holds_alternative<std::string>(ReadSliceLine(line))) << line;
  }
}

TEST(SliceTest, OnlyWhatMakesAWholeIsMerged) {
  const auto slice = [](int number, int of, std::int64_t count = 10) {
    return SliceCount{{number, of}, count, 1};
  };
  const struct {
    std::vector<SliceCount> Slices;
    std::variant<std::int64_t, std::string> Whole;
  } kCases[] = {
      {{slice(2, 2), slice(1, 2)}, 20},
      {{slice(2, 2), slice(1, 2), slice(2, 2)}, 20},
      {{slice(1, 1)}, 10},
      {{}, "there is no slice to add up"},
      {{slice(1, 3), slice(3, 3)}, "slice 2/3 is missing"},
      {{slice(1, 3), slice(2, 3)}, "slice 3/3 is missing"},
      {{slice(1, 2), slice(2, 3)}, "slice 2/3 overlaps slices of 2, such as 1/2"},
      {{slice(1, 2), slice(2, 2), slice(1, 2, 11)},
       "slice 1/2 was counted twice, with different counts or checksums"},
  };
  for (const auto& [slices, whole] : kCases)
    EXPECT_EQ(Merge(slices), whole);
}

}  // namespace
}  // namespace numorra
