#include "app/play/lay_out.h"

#include "app/board/position.h"
#include "app/play/moves.h"
#include "files/square_text.h"
#include "support/invariants.h"
#include "support/play_harness.h"
#include "transform/symmetry.h"

namespace numorra {
namespace {

class LayOutTest : public PlayTest {
 protected:
  void Lay(const std::string& text) {
    LayOut(board_, boxes_, std::get<StoredSquare>(ReadSquareText(text)));
  }
  PlainBoxes boxes_{"9", "77"};
};

TEST_F(LayOutTest, FindsTheTargetThatWasMeant) {
  struct Case {
    const char* text;
    double target;
    Rules rules;
  };
  const Case cases[] = {{"8 1 6\n3 5 7\n4 9 2", 15, Rules::Positive},
                        {"8 . 6\n3 5 _\n4 - 2", 15, Rules::Normal},
                        {"8 . 6\n3 5 7\n4 - 2.5", 15, Rules::Positive},
                        {"20 . 1\n. 5 .\n. 9 .", 77, Rules::Positive},
                        {"20 . 1\n9 . 7\n1 9 2", 12, Rules::Positive},
                        {"20 . 1\n9 . .\n1 . 2", 30, Rules::Positive},
                        {"20 1\n9 0.5 8\n1 . 2.2", 17.5, Rules::Positive}};
  for (const Case& c : cases) {
    boxes_.SumText = "77";
    Lay(c.text);
    EXPECT_EQ(board_.TargetTotal, c.target) << c.text;
    EXPECT_EQ(board_.Asked, c.rules) << c.text;
    EXPECT_EQ(Val(boxes_.SumText), c.target);
    EXPECT_TRUE(board_.TotalsChecked);
    EXPECT_EQ(WhyInvalid(board_), "");
  }
  EXPECT_EQ(dialogs_.Take(), Messages{}) << "without a word";
}

/// Puzzles by the normal rules can be played in either mode, so the mode does not change.
TEST_F(LayOutTest, TheModeStaysNormalForNormalPuzzles) {
  const std::pair<const char*, Mode> cases[] = {{"8 . 6\n3 5 7\n4 9 2", ModeNormal},
                                                {"8 1 6\n3 5 7\n4 9 2", ModeVariable},
                                                {"8 . 60\n3 5 7\n4 9 2", ModeVariable}};
  for (const auto& [text, mode] : cases) {
    board_.SolveMode = ModeNormal;
    Lay(text);
    EXPECT_EQ(board_.SolveMode, mode) << text;
    board_.SolveMode = ModeVariable;
    Lay(text);
    EXPECT_EQ(board_.SolveMode, ModeVariable) << text;
  }
}

/// A gap is never a number, whatever is done to the board.
TEST_F(LayOutTest, GapsStayGaps) {
  Lay("1 . 3\n4 5 6\n. 8 9");
  for (const Symmetry& symmetry : kSymmetries) {
    TurnBoard(board_, symmetry);
    int gaps = 0;
    ForEachCell(3, [&](int r, int c) { gaps += At(r, c).empty(); });
    EXPECT_EQ(gaps, 2) << symmetry.Caption;
    EXPECT_EQ(WhyInvalid(board_), "");
  }
  EXPECT_THROW(Do("Set2Max"), RuntimeError);
  EXPECT_THROW(Do("set2Min"), RuntimeError);
  const StoredSquare stored = StoredSquareOf(board_);
  EXPECT_EQ(std::count(stored.Cells.begin(), stored.Cells.end(), std::nullopt), 2);
}

/// Every command on a given: it is turned with the board, skipped, or refused in one sentence.
TEST_F(LayOutTest, GivensStay) {
  StoredSquare square = std::get<StoredSquare>(ReadSquareText("8 1 6\n3 5 7\n4 9 1"));
  square.Givens = Square<bool>(3);
  square.Givens[0] = square.Givens[4] = true;
  const Messages refused{"the number in row 1, column 1 is given and cannot be changed"};
  const std::function<void()> deeds[] = {[this] { entry_.TypeCharacter('5'); },
                                         [this] { entry_.TypeCharacter(8); },
                                         [this] { entry_.KeypadPlus(); },
                                         [this] { entry_.KeypadMinus(); },
                                         [this] { Do("Set2Cellvaluex"); },
                                         [this] { Do("Set2Max"); },
                                         [this] { Do("set2Ran"); },
                                         [this] { Do("correctrowx"); },
                                         [this] { Do("swapvaluex"); },
                                         [this] { SwapRows(board_, dialogs_, 1, 3); },
                                         [this] { SwapColumns(board_, dialogs_, 3, 1); }};
  for (const auto& deed : deeds) {
    LayOut(board_, boxes_, square);
    board_.MarkedRow = board_.MarkedCol = 3;
    const Position before = PositionOf(board_);
    deed();
    EXPECT_EQ(dialogs_.Take(), refused);
    EXPECT_EQ(PositionOf(board_), before);
    EXPECT_EQ(history_.Tag, "");
  }
  for (const char* whole : {"Set2allran", "SetAllRem"}) {
    LayOut(board_, boxes_, square);
    Do(whole);
    EXPECT_EQ(At(1, 1) + At(2, 2), "85");
    EXPECT_NE(At(3, 2), "9");
    dialogs_.Take();
  }
  LayOut(board_, boxes_, square);
  Do("rot90x");
  EXPECT_TRUE(board_.grid.Given(1, 3) && board_.grid.Given(2, 2) && !board_.grid.Given(1, 1));
  EXPECT_EQ(At(1, 3), "8");
}

}  // namespace
}  // namespace numorra
