#include "app/play/study_commands.h"

#include "support/play_harness.h"
#include "support/slow_classifier.h"

namespace numorra {
namespace {

class StudyCommands : public PlayTest {
 protected:
  PlainBoxes boxes_{"3", "15"};
  CommandContext context_{board_, boxes_, dialogs_, random_};
};

TEST_F(StudyCommands, ShowRelatives) {
  Show("8 1 6 / 3 5 7 / 4 9 2");
  Go(2, 3);
  board_.grid.SetGiven(1, 1, true);
  ComplementBoard(context_);
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("2 9 4 / 7 5 3 / 6 1 8"));
  EXPECT_FALSE(board_.HasGivens());
  EXPECT_EQ(board_.grid.VerdictOf(0, 0), Verdict::Right);
  EXPECT_EQ(Where(), std::pair(2, 3));
  EXPECT_EQ(boxes_.SumText, "15");
  BringToStandardForm(context_);
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("2 7 6 / 9 5 1 / 4 3 8"));
  VaryBoard(context_);
  EXPECT_NE(ShownRows(board_.grid), ParseRows("2 7 6 / 9 5 1 / 4 3 8"));
  EXPECT_EQ(slow::WhyNotNormal(ShownRows(board_.grid)), "");
}

TEST_F(StudyCommands, TakeTheTargetAlong) {
  Show("10.5 1 6 / 3 5 7 / 4 9 2", 15);
  ComplementBoard(context_);
  EXPECT_EQ(At(1, 1), "1");
  EXPECT_EQ(At(1, 2), "10.5");
  EXPECT_EQ(board_.TargetTotal, 19.5);
  EXPECT_EQ(boxes_.SumText, "19.5");
  EXPECT_EQ(board_.grid.VerdictOf(2, 0), Verdict::Right);
  board_.SolveMode = ModeNormal;
  board_.grid.SetText(3, 3, "20");
  ComplementBoard(context_);
  EXPECT_NE(board_.TargetTotal, 19.5);
  EXPECT_EQ(boxes_.SumText, "19.5") << "in the Normal mode the box belongs to the size";
}

TEST_F(StudyCommands, ShowRelativesOfTheKind) {
  const auto relative = [](const std::string& name) -> const Relative& {
    return *std::find_if(kRelatives.begin(), kRelatives.end(),
                         [&](const Relative& one) { return one.Name == name; });
  };
  Show("1 8 13 12 / 14 11 2 7 / 4 5 16 9 / 15 10 3 6", 34);
  const slow::Rows before = ShownRows(board_.grid);
  ShowRelative(relative("MoveRoundx"), context_);
  EXPECT_NE(ShownRows(board_.grid), before);
  EXPECT_EQ(slow::Classify(ShownRows(board_.grid))["pandiagonal"], true);
  ShowRelative(relative("ExchangeOppositesx"), context_);
  EXPECT_EQ(dialogs_.Take(), Messages{"this square has no such relative of its kind"});
  Show("8 1 6 / 3 5 7 / 4 9 2", 15);
  ShowRelative(relative("AddToAllx"), context_);
  EXPECT_GT(board_.TargetTotal, 15);
  EXPECT_EQ(board_.grid.VerdictOf(0, 0), Verdict::Right);
  EXPECT_EQ(board_.Asked, Rules::Positive);
  Show("8 1 6 / 3 5 7 / 4 9 2", 16);
  ShowRelative(relative("AddToAllx"), context_);
  EXPECT_EQ(board_.TargetTotal, 16) << "a target that was wrong stays";
}

TEST_F(StudyCommands, RefuseInOneSentence) {
  Show("8 1 6 / 3 5 7 / 4 9 2");
  board_.grid.SetText(2, 3, "");
  VaryBoard(context_);
  ComplementBoard(context_);
  BringToStandardForm(context_);
  const std::string gap = "row 2, column 3 is empty: this needs a full board";
  EXPECT_EQ(dialogs_.Take(), (Messages{gap, gap, gap}));
  EXPECT_EQ(At(2, 3), "");

  Show("7 7 7 / 7 7 7 / 7 7 7");
  VaryBoard(context_);
  BringToStandardForm(context_);
  Show("99999999999999 1 1 / 1 0.25 1 / 1 1 1");
  ComplementBoard(context_);
  EXPECT_EQ(dialogs_.Take(),
            (Messages{"all squares of this family look like this one", "this is the standard form",
                      "the complement of 1 in row 1, column 2 has "
                      "more than 14 digits"}));
  EXPECT_EQ(At(1, 2), "1");
}

TEST_F(StudyCommands, LayOutSquaresOfTheSizeBox) {
  for (const auto& [size, message] :
       {std::pair{"2", "grid size should be 3x3 or bigger"},
        std::pair{"51", "grid size should be 50x50 or smaller"},
        std::pair{"6",
                  "no pandiagonal normal square has order 6: its sums would make a quarter of "
                  "the numbers add up to 166.5, which is not a whole number"}}) {
    boxes_.SizeText = size;
    EXPECT_FALSE(LayOutSpecial(*FindSpecialKind("pandiagonal"), context_));
    EXPECT_EQ(dialogs_.Take(), Messages{message});
    EXPECT_FALSE(board_.Shown());
  }
  boxes_.SizeText = "7";
  EXPECT_TRUE(LayOutSpecial(*FindSpecialKind("pandiagonal"), context_));
  EXPECT_EQ(slow::WhyNotNormal(ShownRows(board_.grid)), "");
  EXPECT_EQ(board_.Asked, Rules::Normal);
  EXPECT_EQ(boxes_.SumText, "175");
  EXPECT_FALSE(LayOutConstruction(*FindConstruction("quadrants"), context_));
  EXPECT_EQ(dialogs_.Take(),
            Messages{"the method of quadrants makes the orders 6, 10, 14 and so on, not 7"});
  EXPECT_TRUE(LayOutConstruction(*FindConstruction("knight"), context_));
  EXPECT_EQ(slow::WhyNotNormal(ShownRows(board_.grid)), "");
  EXPECT_EQ(WalkOf(SquareOn(board_)->Numbers()).size(), 49U);
  LayOutFamous(FamousSquares().front(), context_);
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("4 9 2 / 3 5 7 / 8 1 6"));
  EXPECT_EQ(boxes_.SizeText, "3");
}

}  // namespace
}  // namespace numorra
