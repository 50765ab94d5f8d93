#include "app/play/board_state.h"

#include <tuple>

#include "support/play_harness.h"

namespace numorra {
namespace {

using BoardStateTest = PlayTest;

TEST_F(BoardStateTest, SaysWhatIsTrueOfTheBoard) {
  EXPECT_EQ(StateOf(board_), "");
  struct Case {
    const char* rows;
    double target;
    const char* state;
  };
  const Case cases[] = {
      {"8 1 6 / 3 5 7 / 4 9 2", 15, "3 x 3, sum 15: magic"},
      {"8 1 6 / 3 5 7 / 4 9 2", 16, "3 x 3, sum 16: 0 of 8 lines right"},
      {"8 1 6 / 3 5 7 / 4 9 3", 15, "3 x 3, sum 15: 5 of 8 lines right"},
      {"6 6 6 / 6 6 6 / 6 6 6", 18, "3 x 3, sum 18: magic, 1 number more than once"},
      {"5 5 5 / 5 5 5 / 5 5 5", 15, "3 x 3, sum 15: all cells are still equal"},
      {"0.2 0.7 0.6 / 0.9 0.5 0.1 / 0.4 0.3 0.8", 1.5, "3 x 3, sum 1.5: magic"},
      {"4 1 4 / 3 3 3 / 2 5 2", 9, "3 x 3, sum 9: magic, 3 numbers more than once"}};
  for (const Case& c : cases) {
    Show(c.rows, c.target);
    EXPECT_EQ(StateOf(board_), c.state);
  }
  Show("8 1 6 / 3 5 7 / 4 9 3");
  Go(3, 3);
  entry_.TypeCharacter(U'2');
  EXPECT_EQ(StateOf(board_), "3 x 3, sum 15: 5 of 8 lines right, Enter checks");
  Go(3, 2);
  dialogs_.Take();
  EXPECT_EQ(StateOf(board_), "3 x 3, sum 15: magic");
  entry_.TypeCharacter(U'8');
  EXPECT_EQ(StateOf(board_), "3 x 3, sum 15: magic, Enter checks") << "as the totals have it";
  Show("4 1 4 / 3 3 3 / 2 5 2", 9);
  board_.grid.SetText(2, 2, "");
  EXPECT_EQ(StateOf(board_), "3 x 3, sum 9: 1 cell to fill");
  board_.grid.SetGiven(1, 1, true);
  board_.Asked = Rules::Positive;
  EXPECT_EQ(StateOf(board_), "3 x 3, sum 9: 1 cell to fill, any whole numbers");
  board_.Asked = Rules::Normal;
  EXPECT_EQ(StateOf(board_), "3 x 3, sum 9: 1 cell to fill, 1 to 9 each once");
  ShowRows(board_, "8 1 6 / 3 5 7 / 4 9 2", 15);
  board_.TotalsChecked = false;
  board_.ReturnTo(1, 1);
  EXPECT_EQ(StateOf(board_), "3 x 3, sum 15: magic, F9 to play");
}

TEST_F(BoardStateTest, TotalsSayWhichLineTheyAddAndHowFarTheyAreOff) {
  ShowRows(board_, "8 1 6 / 3 5 7 / 4 9 3", 15);
  const std::tuple<int, int, const char*> tips[] = {
      {3, 0, "row 3 adds up to 16, 1 more than 15"},
      {0, 2, "column 2 adds up to 15, as it should"},
      {0, 0, "the main diagonal that falls adds up to 16, 1 more than 15"},
      {0, 4, "the main diagonal that rises adds up to 15, as it should"},
      {4, 0, "the main diagonal that rises adds up to 15, as it should"},
      {1, 4, ""},
      {2, 2, ""}};
  for (const auto& [row, column, tip] : tips)
    EXPECT_EQ(TipOfTotal(board_, row, column), tip);
  board_.QuietTotals = true;
  board_.grid.SetText(1, 1, "");
  EXPECT_EQ(TipOfTotal(board_, 3, 0), "row 3 adds up to 16");
}

}  // namespace
}  // namespace numorra
