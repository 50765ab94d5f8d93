#include "app/play/fill_gaps.h"

#include "app/play/lay_out.h"
#include "support/play_harness.h"
#include "support/slow_classifier.h"

namespace numorra {
namespace {

class FillGapsTest : public PlayTest {
 protected:
  /// 0 is a gap; the places in `givens` are given.
  void LayOutGaps(const std::string& rows, double target, Rules rules = Rules::Normal,
                  const std::vector<int>& givens = {}) {
    const slow::Rows parsed = ParseRows(rows);
    StoredSquare square{.Cells = StoredCells(SquareFrom(parsed)), .Total = target, .Asked = rules};
    for (auto& cell : square.Cells) {
      if (cell == 0) cell.reset();
    }
    if (!givens.empty()) square.Givens = Square<bool>(square.Order());
    for (const int cell : givens)
      square.Givens[cell] = true;
    LayOut(board_, boxes_, square);
  }
  void Fill(bool limit = false) { FillGaps({board_, boxes_, dialogs_, random_}, limit, stage_); }

  PlainBoxes boxes_;
  NotingStage stage_;
};

/// A digit typed before the filling causes no congratulation afterwards.
TEST_F(FillGapsTest, TheProgramsOwnWorkIsNotAnnounced) {
  for (const bool fill : {true, false}) {
    LayOutGaps("8 1 6 / 3 5 0 / 4 9 2", 15);
    Go(1, 1);
    entry_.TypeCharacter(U'8');
    fill ? Fill() : EmptyBoard(board_);
    EXPECT_FALSE(board_.Typing());
    Go(2, 2);
    EXPECT_EQ(dialogs_.Take(), Messages{});
  }
}

TEST_F(FillGapsTest, FillsAndSaysHowManySolutionsThereAre) {
  LayOutGaps("8 1 0 / 0 5 0 / 0 0 0", 15, Rules::Normal, {0});
  Fill();
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("8 1 6 / 3 5 7 / 4 9 2"));
  EXPECT_TRUE(board_.grid.Given(1, 1));
  EXPECT_EQ(board_.grid.VerdictOf(0, 0), Verdict::Right);
  EXPECT_FALSE(stage_.Busy);
  Fill();
  LayOutGaps("0 0 0 / 0 5 0 / 0 0 0", 15);
  Fill();
  EXPECT_EQ(slow::WhyNotNormal(ShownRows(board_.grid)), "");
  LayOutGaps("0 0 0 / 0 10 0 / 0 0 0", 30, Rules::Positive);
  Fill(true);
  EXPECT_TRUE(board_.HasGaps());
  Fill();
  EXPECT_EQ(slow::WhyNotMagic(ShownRows(board_.grid), 30), "");
  EXPECT_EQ(dialogs_.Take(),
            (Messages{"the board has no gaps to fill", "this is one of several solutions",
                      "nothing can fill these gaps: 10 in row 2, column 2 is not one of the "
                      "numbers 1 to 9",
                      "this is one of several solutions"}));
}

TEST_F(FillGapsTest, NamesTheEntryThatCannotStay) {
  LayOutGaps("8 1 0 / 0 4 0 / 0 0 0", 15, Rules::Normal, {0, 1});
  Fill();
  LayOutGaps("8 1 0 / 0 4 0 / 0 0 0", 15, Rules::Normal, {0, 1, 4});
  Fill();
  LayOutGaps("8 1 6 / 3 2 0 / 4 7 0", 15);
  Fill();
  LayOutGaps("8 8 0 / 0 4 0 / 0 0 0", 15);
  Fill();
  LayOutGaps("8 0 2 / 0 0 0 / 0 0 0", 15);
  Fill();
  EXPECT_EQ(dialogs_.Take(),
            (Messages{"nothing can fill these gaps: 4 in row 2, column 2 cannot stay",
                      "nothing can fill these gaps",
                      "nothing can fill these gaps: column 2 adds up to 10, not 15",
                      ("nothing can fill these gaps: 8 in row 1, column 2 is also in row 1, column "
                       "1"),
                      ("nothing can fill these gaps: 8 in row 1, column 1, or 2 in row 1, column 3 "
                       "cannot stay")}));
  EXPECT_EQ(At(2, 1), "");
}

TEST_F(FillGapsTest, FillsAsAKind) {
  const auto fillAs = [this](const char* term) {
    FillGaps({board_, boxes_, dialogs_, random_}, false, stage_, *FindLineKind(term));
  };
  LayOutGaps("1 0 0 0 / 0 0 0 0 / 0 0 0 0 / 0 0 0 0", 34);
  fillAs("pandiagonal");
  EXPECT_EQ(slow::Classify(ShownRows(board_.grid))["pandiagonal"], true);
  LayOutGaps("1 0 0 0 / 0 0 0 0 / 0 0 0 0 / 0 0 0 16", 34);
  fillAs("pandiagonal");
  EXPECT_TRUE(board_.HasGaps()) << "16 would be opposite";
  fillAs("ultramagic");
  const Messages said = dialogs_.Take();
  EXPECT_EQ(said[0], "this is one of several solutions");
  EXPECT_TRUE(said[1].starts_with("nothing can fill these gaps: 1 in row 1, column 1"));
  EXPECT_TRUE(said[2].starts_with("nothing can fill these gaps: no ultramagic normal square"));
}

TEST_F(FillGapsTest, EmptiesEveryCellThatIsNotGiven) {
  LayOutGaps("8 1 6 / 3 0 0 / 4 0 2", 15, Rules::Normal, {0, 8});
  EmptyBoard(board_);
  EXPECT_EQ(At(1, 1) + At(1, 2) + At(2, 1) + At(3, 3), "82");
  EXPECT_TRUE(board_.grid.Given(1, 1) && board_.TotalsChecked);
  EXPECT_EQ(board_.grid.Text(0, 0), "10");
}

TEST_F(FillGapsTest, FillsLargeBoards) {
  std::string rows = "20";
  for (int row = 0; row < 33; ++row) {
    for (int column = 0; column < 33; ++column)
      rows += row + column > 0 ? " 0" : "";
    rows += row < 32 ? " /" : "";
  }
  LayOutGaps(rows, 17'985);
  dialogs_.Answers = {true};
  Fill();
  EXPECT_EQ(dialogs_.Take().back(), "this is one of several solutions");
  EXPECT_EQ(slow::WhyNotNormal(ShownRows(board_.grid)), "");
}

/// A stopped search leaves the board as it was, and no bar.
TEST_F(FillGapsTest, IsSuperseded) {
  LayOutGaps("0 0 0 0 / 0 0 0 0 / 0 0 0 0 / 0 0 0 1", 34);
  stage_.YieldsLeft = 3;
  EXPECT_THROW(Fill(), Superseded);
  EXPECT_FALSE(stage_.Busy);
  EXPECT_EQ(At(4, 4), "1");
  EXPECT_EQ(At(1, 1), "");
}

}  // namespace
}  // namespace numorra
