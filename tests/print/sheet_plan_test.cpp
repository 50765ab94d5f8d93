#include "print/sheet_plan.h"

#include <gtest/gtest.h>

#include "print/sheet_words.h"

namespace numorra {
namespace {

TEST(SheetPlan, HasMorePuzzlesAlongTheLongSide) {
  for (const int perPage : {2, 6}) {
    const SheetPlan tall{.Paper = {210, 297}, .Options = {}, .PerPage = perPage};
    const SheetPlan wide{.Paper = {297, 210}, .Options = {}, .PerPage = perPage};
    const int last = perPage - 1;
    EXPECT_LT(tall.SlotArea(0, perPage / 2 - 1).top(), tall.SlotArea(0, last).top());
    EXPECT_EQ(tall.SlotArea(0, 0).left() == tall.SlotArea(0, last).left(), perPage == 2);
    EXPECT_EQ(wide.SlotArea(0, 0).top() == wide.SlotArea(0, last).top(), perPage == 2);
    EXPECT_EQ(wide.SlotArea(0, perPage / 2 - 1).top(), wide.SlotArea(0, 0).top());
  }
}

TEST(SheetWords, NameTheRulesOnTopOrAtEachPuzzle) {
  MadePuzzle normal, positive;
  positive.Clues.Asked = Rules::Positive;
  struct Case {
    std::vector<MadePuzzle> Set;
    bool Mixed;
    const char* Rules;
  };
  const Case cases[] = {{{}, false, "Fill the gaps so"},
                        {{normal, normal}, false, "Fill the gaps with each missing number once,"},
                        {{positive}, false, "Fill the gaps with whole numbers of 1 or more,"},
                        {{positive, normal}, true, "Fill the gaps so"},
                        {{normal, normal, positive}, true, "Fill the gaps so"}};
  for (const Case& c : cases) {
    EXPECT_EQ(AreMixed(c.Set), c.Mixed);
    EXPECT_TRUE(RulesText(c.Set).startsWith(c.Rules)) << RulesText(c.Set).toStdString();
  }
}

}  // namespace
}  // namespace numorra
