#include "app/play/hints.h"

#include "app/play/enter_puzzle.h"
#include "app/play/entry_names.h"
#include "app/play/lay_out.h"
#include "puzzle/code.h"
#include "support/invariants.h"
#include "support/play_harness.h"

namespace numorra {
namespace {

class HintsTest : public PlayTest {
 protected:
  void Read(const std::string& text) {
    LayOut(board_, boxes_, std::get<StoredSquare>(ReadSquareOrCode(text)));
  }
  void Type(int row, int column, const char* number) { board_.grid.SetText(row, column, number); }
  std::string Check() { return CheckEntries(board_, random_, stage_).Text; }

  std::string Enter(bool eachOnce) {
    dialogs_.Answers = {eachOnce};
    return EnterPuzzle({board_, boxes_, dialogs_, random_}, stage_).Text;
  }

  PlainBoxes boxes_;
  NotingStage stage_;
  Hints hints_{board_, random_, stage_};
};

TEST_F(HintsTest, TellWhereWhyAndWhat) {
  Read("8 1 .\n. 5 .\n. . .");
  Remark remark = hints_.Next();
  EXPECT_EQ(remark.Text, "look at row 1");
  EXPECT_EQ(remark.Where, (std::vector<Place>{{1, 1}, {1, 2}, {1, 3}}));
  EXPECT_EQ(hints_.Next().Text, "2 numbers are in row 1, the total is 15: the last one is 6");
  EXPECT_EQ(At(1, 3), "");
  EXPECT_EQ(hints_.Next().Text, "6 is in row 1, column 3");
  EXPECT_EQ(At(1, 3), "6");
  EXPECT_EQ(board_.grid.VerdictOf(1, 0), Verdict::Right);
  hints_.Next();
  Type(2, 1, "3");
  EXPECT_EQ(hints_.Next().Text.substr(0, 7), "look at") << "a change begins anew";
  while (board_.HasGaps())
    hints_.Next();
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("8 1 6 / 3 5 7 / 4 9 2"));
  EXPECT_EQ(hints_.Next().Text, "the board has no gaps");
  Read(". 12 . .\n2 13 . .\n14 1 . .\n. 8 5 .");
  hints_.Next();
  remark = hints_.Next();
  ASSERT_EQ(remark.Steps.size(), 13U);
  EXPECT_EQ(remark.Text, remark.Steps[0].Text);
  EXPECT_EQ(remark.Where, (std::vector<Place>{{1, 1}, {1, 2}, {1, 3}, {1, 4}})) << "row 1";
  EXPECT_EQ(remark.Steps[12].Text, "16 fits only row 2, column 3, as no other gap can hold it");
  EXPECT_EQ(remark.Steps[12].Where, (std::vector<Place>{{2, 3}}));
}

TEST_F(HintsTest, PointAtWhatCannotStay) {
  Read("NP12S3W04");  // . . . / . 5 . / 2 9 .
  Type(1, 1, "8");
  Type(1, 2, "6");
  Remark remark = hints_.Next();
  EXPECT_EQ(remark.Text, "8 in row 1, column 1; 6 in row 1, column 2: none of these can stay");
  EXPECT_EQ(remark.Where, (std::vector<Place>{{1, 1}, {1, 2}}));
  Type(1, 2, "1");
  EXPECT_EQ(Check(), "8 in row 1, column 1 cannot stay");
  Type(1, 1, "6");
  EXPECT_EQ(Check(), "all entries can stay");
  Type(1, 1, "5");
  EXPECT_EQ(Check(), "5 in row 1, column 1 is also in row 2, column 2") << "a given is right";
  Read("8 1 6\n3 5 7\n2 9 4");
  EXPECT_EQ(hints_.Next().Text, "not all lines of the board are right");
}

/// The same cells with another total are another puzzle.
TEST_F(HintsTest, BelongToOneTotal) {
  const auto layOut = [this](double total) {
    LayOut(
        board_, boxes_,
        {.Cells = {3, {5, 5, {}, 5, 5, {}, {}, {}, {}}}, .Total = total, .Asked = Rules::Positive});
  };
  layOut(15);
  hints_.Next();
  hints_.Next();
  layOut(18);
  hints_.Next();
  EXPECT_EQ(At(1, 3), "") << "the third press is the first one again";
}

TEST_F(HintsTest, SayWhyABoardIsNoPuzzle) {
  Read(". . .\n. 5 .\n. . .");
  EXPECT_EQ(hints_.Next().Text, "this board has several solutions, so no number follows");
  Read("4 . . 16\n. . . .\n. . . .\n1 . . 13");
  EXPECT_EQ(Enter(true), "by the numbers 1 to 16, each once: 4 solutions");
  EXPECT_EQ(dialogs_.Take().back(),
            "by the numbers 1 to 16, each once: 4 solutions\nby any whole numbers: at least 100 "
            "solutions\ntake the numbers 1 to 16, each once?");
  EXPECT_EQ(WhyInvalid(board_), "");
  EXPECT_TRUE(board_.grid.Given(1, 1));
  EXPECT_FALSE(board_.grid.Given(2, 2));
  hints_.Next();
  board_.grid.SetText(1, 2, "9");
  EXPECT_EQ(Check(), "all entries can stay") << "of several solutions, one has it";
  board_.grid.SetText(1, 2, "15");
  EXPECT_EQ(Check(), "15 in row 1, column 2 cannot stay");
  const struct {
    const char* Rows;
    bool EachOnce;
    const char* Remark;
    std::size_t Questions;
  } kEntered[] = {
      {"1 . . .\n. . . .\n. . . .\n. . . .", true,
       "by the numbers 1 to 16, each once: at least 100 solutions", 1},
      {"8 1 .\n. 5 .\n. . .", false, "by any whole numbers: one solution, easy", 1},
      {"8 1 .\n. 4 .\n. . .", true, "by the numbers 1 to 9, each once: no solution", 1},
      {"8 8 .\n. 5 .\n. . .", true, "by any whole numbers: no solution", 0},
      {"8 1 6\n3 5 7\n4 9 2", true, "a puzzle has gaps: empty some cells with Backspace first", 0},
  };
  for (const auto& entered : kEntered) {
    Read(entered.Rows);
    EXPECT_EQ(Enter(entered.EachOnce), entered.Remark);
    EXPECT_EQ(dialogs_.Take().size(), entered.Questions) << entered.Rows;
    const bool normal = entered.Questions > 0 && entered.EachOnce;
    EXPECT_TRUE(!board_.HasGivens() || (board_.Asked == Rules::Normal) == normal);
  }
  EXPECT_FALSE(board_.HasGivens());
}

TEST(EntryNames, NameTheFirstFiveAndCountTheOthers) {
  const Position position{.Texts = SquareOf(3, [](int cell) { return std::to_string(cell + 1); })};
  std::vector<Place> cells;
  for (const int column : {1, 2, 3, 1, 2, 3, 1})
    cells.push_back({static_cast<int>(cells.size()) / 3 + 1, column});
  EXPECT_EQ(NamesOfEntries(position, cells),
            "1 in row 1, column 1; 2 in row 1, column 2; 3 in row 1, column 3; "
            "4 in row 2, column 1; 5 in row 2, column 2; and 2 more");
}

}  // namespace
}  // namespace numorra
