#include "app/play/board_mouse.h"

#include "support/play_harness.h"

namespace numorra {
namespace {

class BoardMouseTest : public PlayTest {
 protected:
  PressOutcome Left(int row, int column) {
    return PressBoard(board_, dialogs_, row, column, PressedButton::Left);
  }
  PressOutcome Right(int row, int column) {
    return PressBoard(board_, dialogs_, row, column, PressedButton::Right);
  }
};

TEST_F(BoardMouseTest, PressesAskForWhatTheyShould) {
  EXPECT_EQ(Left(1, 1), PressOutcome::Nothing) << "no board";
  ShowRows(board_, "1 2 3 / 4 5 6 / 7 8 9");
  EXPECT_EQ(Left(1, 1), PressOutcome::OpenShortMenu) << "not checked yet";
  EXPECT_EQ(Right(0, 0), PressOutcome::OpenShortMenu);
  EXPECT_EQ(Right(5, 1), PressOutcome::Nothing);
  Show("1 2 3 / 4 5 6 / 7 8 9");
  EXPECT_EQ(Right(2, 3), PressOutcome::OpenMenu);
  EXPECT_EQ(Where(), (std::pair{2, 3}));
  EXPECT_EQ(Left(3, 1), PressOutcome::Done);
  EXPECT_EQ(Where(), (std::pair{3, 1}));
  for (const auto& [r, c] : {std::pair{0, 0}, {0, 2}, {2, 0}, {4, 4}, {4, 0}, {2, 4}}) {
    EXPECT_EQ(Right(r, c), PressOutcome::Done);
    EXPECT_EQ(Where(), (std::pair{3, 1}));
  }
  EXPECT_EQ(Left(1, 5), PressOutcome::Nothing);
  EXPECT_EQ(PressBoard(board_, dialogs_, 1, 1, PressedButton::Other), PressOutcome::Done);
}

TEST_F(BoardMouseTest, MarksSwapRowsAndColumns) {
  Show("8 1 6 / 4 9 2 / 3 5 7");
  Left(2, 4);
  Left(3, 4);
  EXPECT_EQ(At(2, 4) + At(3, 4), "X") << "the earlier mark is wiped";
  Right(2, 4);
  EXPECT_EQ(dialogs_.Take(), Messages{kWin});
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("8 1 6 / 3 5 7 / 4 9 2"));
  EXPECT_EQ(At(3, 4), "");
  Right(1, 4);
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("8 1 6 / 3 5 7 / 4 9 2")) << "no row is marked";
  for (const int column : {1, 3}) {
    Left(4, 1);
    EXPECT_EQ(At(4, 1), "X");
    Right(4, column);
    EXPECT_EQ(At(4, 1), "");
    EXPECT_EQ(dialogs_.Take().size(), column == 1 ? 0U : 1U) << "with itself it is no move";
  }
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("6 1 8 / 7 5 3 / 2 9 4"));
}

TEST_F(BoardMouseTest, KeysMarkAndSwapToo) {
  const auto mark = [this](int row, int column, MarkedLine line) {
    Go(row, column);
    return MarkByKey(board_, dialogs_, line);
  };
  EXPECT_EQ(MarkByKey(board_, dialogs_, MarkedLine::Row), PressOutcome::Nothing) << "no board";
  Show("8 1 6 / 4 9 2 / 3 5 7");
  mark(3, 1, MarkedLine::Cell);
  mark(2, 3, MarkedLine::Row);
  EXPECT_EQ(At(2, 4), "X") << "a remembered cell is no marked row";
  mark(3, 1, MarkedLine::Row);
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("8 1 6 / 3 5 7 / 4 9 2"));
  EXPECT_EQ(dialogs_.Take(), Messages{kWin});
  mark(1, 1, MarkedLine::Column);
  mark(2, 3, MarkedLine::Row);
  EXPECT_EQ(At(4, 1), "") << "one mark at a time";
  mark(2, 1, MarkedLine::Row);
  EXPECT_EQ(At(2, 4), "") << "taken back";
  mark(1, 3, MarkedLine::Column);
  EXPECT_EQ(Where(), (std::pair{1, 3}));
}

TEST_F(BoardMouseTest, APressOnACellRemovesTheMarks) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  Left(2, 4);
  Left(4, 3);
  EXPECT_EQ(At(4, 3), "X");
  Left(1, 1);
  EXPECT_EQ(At(2, 4) + At(4, 3), "");
  Right(3, 4);
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("7 8 9 / 4 5 6 / 1 2 3")) << "the cell's row";
}

TEST_F(BoardMouseTest, RememberedCellsSwapByTheMenu) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  history_.Record(13, "before");
  Do("swapvaluex");
  EXPECT_EQ(At(1, 1), "1") << "nothing remembered";
  Left(1, 1);
  Right(3, 2);
  Do("swapvaluex");
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("8 2 3 / 4 5 6 / 7 1 9"));
  EXPECT_EQ(Where(), (std::pair{3, 2}));
  EXPECT_EQ(history_.Caption, "before") << "a swap is not recorded";
}

}  // namespace
}  // namespace numorra
