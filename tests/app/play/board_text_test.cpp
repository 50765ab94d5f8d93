#include "app/play/board_text.h"

#include "app/play/moves.h"
#include "generate/normal_square.h"
#include "support/invariants.h"
#include "support/play_harness.h"

namespace numorra {
namespace {

class BoardTextTest : public PlayTest {
 protected:
  bool Paste(const std::string& text) {
    const bool pasted = PasteBoard({board_, boxes_, dialogs_, random_}, text);
    if (pasted) CheckAndReturn(board_, dialogs_);
    return pasted;
  }
  PlainBoxes boxes_{"9", "9"};
};

TEST_F(BoardTextTest, ShowsATextAsABoardToBePlayed) {
  EXPECT_TRUE(Paste("8\t1\t6\n3\t5\t7\n4\t9\t2\n"));
  EXPECT_EQ(dialogs_.Take(), Messages{kWin});
  EXPECT_EQ(boxes_.SizeText + " " + boxes_.SumText, "3 15");
  EXPECT_EQ(board_.SolveMode, ModeVariable);
  EXPECT_TRUE(board_.TotalsChecked);
  EXPECT_EQ(BoardText(board_), "8\t1\t6\n3\t5\t7\n4\t9\t2\n");
  EXPECT_TRUE(Paste("-1 2.5 3\n4 5 6\n7 8 9"));
  EXPECT_EQ(boxes_.SumText, "4.5");
  EXPECT_TRUE(Paste("99999999999999 99999999999999 99999999999999\n1 1 1\n1 1 1"));
  EXPECT_EQ(At(1, 0), "299999999999997");
  EXPECT_EQ(board_.BaseValue, 32767) << "held at what 16 bits take";
  Go(2, 1);
  Do("correctcolx");
  EXPECT_EQ(dialogs_.Take(), Messages{"cannot adjust, value will have more than 14 digits"});
  Go(1, 1);
  entry_.KeypadPlus();
  EXPECT_EQ(At(1, 1), "99999999999999") << "a step to 15 digits is not made";
}

TEST_F(BoardTextTest, RefusesOtherTextsAndChangesNothing) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  EXPECT_FALSE(Paste("1 2 3\n4 5 x\n7 8 9"));
  EXPECT_EQ(dialogs_.Take(), Messages{"line 2: \"x\" is not a number"});
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("1 2 3 / 4 5 6 / 7 8 9"));
  EXPECT_EQ(boxes_.SumText, "9");
}

/// Magic squares in tenths, hundredths and thousandths, also shifted by their middle number, so
/// that numbers and sums are negative or 0: each counts as solved.
TEST_F(BoardTextTest, DecimalsAreJudgedAsTheyAreWritten) {
  SeededRandom random(3);
  SilentStage stage;
  NormalSquare squares(random, stage);
  for (const int order : {3, 4, 5, 8, 10}) {
    const CellTable square = squares.Build(order);
    for (const int scale : {10, 100, 1000}) {
      for (const int less : {0, (order * order + 1) / 2, order * order}) {
        std::string text;
        ForEachCell(order, [&](int r, int c) {
          text += Decimal((square(r, c) - less) / scale) + (c < order ? "," : "\n");
        });
        EXPECT_TRUE(Paste(text)) << text;
        EXPECT_EQ(dialogs_.Take(), Messages{kWin}) << text << At(1, 0);
        EXPECT_EQ(WhyInvalid(board_), "");
      }
    }
  }
  board_.TargetTotal = 15.1;
  ShowRows(board_, "6 6 6 / 6 6 6 / 6 6 6", 15.1);
  Recount(board_);
  board_.ReturnTo(1, 1);
  Do("correctrowx");
  EXPECT_EQ(At(1, 1) + " " + At(1, 0), "3.1 15.1");
  EXPECT_EQ(board_.grid.VerdictOf(1, 0), Verdict::Right);
  entry_.KeypadMinus();
  entry_.KeypadMinus();
  entry_.KeypadMinus();
  EXPECT_EQ(At(1, 1), "0.1");
}

}  // namespace
}  // namespace numorra
