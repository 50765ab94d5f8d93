#include "app/play/board_text.h"

#include "app/play/moves.h"
#include "support/play_harness.h"

namespace numorra {
namespace {

class BoardTextTest : public PlayTest {
 protected:
  bool Paste(const std::string& text) {
    const bool pasted = PasteBoard(board_, boxes_, dialogs_, text);
    if (pasted) CheckAndReturn(board_, dialogs_);
    return pasted;
  }
  PlainBoxes boxes_{"9", "9"};
};

TEST_F(BoardTextTest, TakesBlocksFromTablesAndTexts) {
  for (const char* text : {"8\t1\t6\n3\t5\t7\n4\t9\t2\n", "8\t1\t6\r\n3\t5\t7\r\n4\t9\t2",
                           "8,1,6\n3,5,7\n4,9,2", "8;1;6\n3; 5 ;7\n4;9;2\n\n",
                           "\n\n  8 1 6\n 3  5 7\n 4 9  2 \n", "8.0 +1 6\n3 5 7\n4 9 2"}) {
    EXPECT_TRUE(Paste(text)) << text;
    EXPECT_EQ(ShownRows(board_.grid), ParseRows("8 1 6 / 3 5 7 / 4 9 2")) << text;
    EXPECT_EQ(dialogs_.Take(), Messages{kWin});
    EXPECT_EQ(boxes_.SizeText, "3");
    EXPECT_EQ(boxes_.SumText, "15");
    EXPECT_EQ(board_.SolveMode, ModeVariable);
    EXPECT_TRUE(board_.TotalsChecked);
  }
  EXPECT_EQ(BoardText(board_), "8\t1\t6\n3\t5\t7\n4\t9\t2\n");
  EXPECT_TRUE(Paste("-1 2.5 3\n4 5 6\n7 8 9"));
  EXPECT_EQ(boxes_.SumText, "4.5");
}

TEST_F(BoardTextTest, RefusesAnythingElseAndChangesNothing) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  std::string wide;
  for (int i = 0; i < 51; ++i)
    wide += "1 2 3\n";
  for (const std::string& text :
       {std::string(), std::string("hello"), std::string("1 2\n3 4"), std::string("1 2 3\n4 5 6"),
        std::string("1 2 3 4\n1 2 3 4\n1 2 3 4"), std::string("1 2 3\n4 5\n7 8 9"),
        std::string("1 2 3\n\n4 5 6\n7 8 9"), std::string("1 2 x\n4 5 6\n7 8 9"),
        std::string("1,2,3,\n4,5,6,\n7,8,9,"), std::string("1e9 2 3\n4 5 6\n7 8 9"),
        std::string("1234567890123456 2 3\n4 5 6\n7 8 9"), std::string(2 << 20, '1'), wide}) {
    EXPECT_FALSE(Paste(text)) << text.substr(0, 40);
    EXPECT_EQ(dialogs_.Take().size(), 1U);
    EXPECT_EQ(ShownRows(board_.grid), ParseRows("1 2 3 / 4 5 6 / 7 8 9"));
    EXPECT_EQ(boxes_.SumText, "9");
  }
  EXPECT_THROW(Paste("99999 99999 99999\n1 1 1\n1 1 1"), RuntimeError);
  EXPECT_EQ(board_.BaseValue, 5);
}

}  // namespace
}  // namespace numorra
