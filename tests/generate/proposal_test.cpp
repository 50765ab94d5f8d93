#include "generate/proposal.h"

#include <gtest/gtest.h>
#include <set>

#include "app/board/numbers.h"
#include "support/stand_ins.h"

namespace numorra {
namespace {

TEST(Proposal, StaysWithinItsBounds) {
  SeededRandom random(5);
  std::set<double> sizes;
  for (int i = 0; i < 2000; ++i) {
    PlainBoxes boxes;
    ProposeSquare(boxes, ModeVariable, random);
    const double size = Val(boxes.Size());
    sizes.insert(size);
    EXPECT_TRUE(Val(boxes.Sum()) > size * size && Val(boxes.Sum()) <= 2 * size * size);
  }
  EXPECT_EQ(sizes, (std::set<double>{3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}));
}

TEST(Proposal, IsDrawnAgainWhileItEqualsWhatIsShown) {
  // 3 + 12 x 0.34 is 7; 50 + 49 x 0.5 is 74: the same pair twice, then another total.
  ScriptedRandom random({0.34, 0.5, 0.34, 0.75});
  PlainBoxes boxes{"7", "74"};
  ProposeSquare(boxes, ModeVariable, random);
  EXPECT_EQ(boxes.Size(), "7");
  EXPECT_EQ(boxes.Sum(), "86");
  EXPECT_EQ(random.Reseeds, 4);
}

TEST(MagicConstant, FollowsTheTextOfTheSizeBox) {
  const std::pair<const char*, const char*> cases[] = {{"3", "15"},    {"4", "34"},     {"5", "65"},
                                                       {"14", "1379"}, {"50", "62525"}, {"", "0"},
                                                       {"x", "0"},     {"-2", "-5"}};
  for (const auto& [size, sum] : cases)
    EXPECT_EQ(NormalTotalText(size), sum) << size;
  EXPECT_EQ(NormalTotalText(std::string(400, '9')), "");
  EXPECT_EQ(NormalTotalText(std::string(150, '9')), "");
}

}  // namespace
}  // namespace numorra
