#include "app/play/edit_commands.h"

#include "app/board/runtime_error.h"
#include "support/play_harness.h"

namespace numorra {
namespace {

using EditCommandsTest = PlayTest;

TEST_F(EditCommandsTest, ValuesComeFromTheWholeBoard) {
  Do("Set2Max");
  Do("SetAllRem");
  Do("swapvaluex");
  edit_.Redo();
  EXPECT_EQ(history_.Caption, "Redo last command") << "no board yet";
  struct Case {
    const char* item;
    const char *corner, *written;
  };
  const Case cases[] = {{"Set2Max", "7.5", "8"},   {"Set2Max", "6.5", "6"},
                        {"Set2Max", "2", "6"},     {"set2Min", "0.5", "0"},
                        {"set2Min", "-12", "-12"}, {"Set2Cellvaluex", "1", "5"}};
  for (const Case& c : cases) {
    Show("1 6 6 / 6 6 6 / 6 6 6");
    board_.grid.SetText(1, 1, c.corner);
    Go(2, 2);
    Do(c.item);
    EXPECT_EQ(At(2, 2), c.written) << Command(c.item).Caption << " with " << c.corner;
    EXPECT_EQ(Where(), (std::pair{2, 2}));
    EXPECT_EQ(history_.Tag, std::to_string(Command(c.item).Code));
  }
  Show("9999 10000 10001 / 9999 9999 9999 / 9999 9999 9999");
  Do("set2Min");
  EXPECT_EQ(At(1, 1), "9999");
  Show("-1000 -1000 -1000 / -1000 -1000 -1000 / -1000 -1000 -1000");
  Do("Set2Max");
  EXPECT_EQ(At(1, 1), "-999");
}

TEST_F(EditCommandsTest, TextsThatAreNotNumbersStopOnlyTheExtremes) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  board_.grid.SetText(3, 3, "");
  EXPECT_THROW(Do("Set2Max"), RuntimeError);
  board_.grid.SetText(3, 3, "40000");
  EXPECT_THROW(Do("Set2Max"), RuntimeError);
  EXPECT_EQ(At(1, 1), "1");
  EXPECT_EQ(history_.Tag, "");
  EXPECT_FALSE(board_.grid.RedrawLocked());
}

TEST_F(EditCommandsTest, AMoveToTheUntouchedBoardIsRefusedAndRecorded) {
  Show("5 5 5 / 5 6 5 / 5 5 5");
  Go(2, 2);
  Do("Set2Cellvaluex");
  EXPECT_EQ(At(2, 2), "6");
  EXPECT_EQ(history_.Tag, "8");
  EXPECT_EQ(history_.Caption, "set value to 5");
  edit_.Redo();
  EXPECT_EQ(At(2, 2), "6");
  Do("correctrowx");
  EXPECT_EQ(At(2, 2), "6");
  EXPECT_EQ(history_.Caption, "correct row total");
}

TEST_F(EditCommandsTest, RandomValuesLieFromOneToTheBase) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  const int before = random_.Reseeds;
  Do("Set2allran");
  EXPECT_EQ(random_.Reseeds - before, 9) << "one reseed a cell";
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("1 3 5 / 1 3 5 / 1 3 5"));
  EXPECT_EQ(history_.Caption, "entire grid to random values");
  Do("set2Ran");
  EXPECT_EQ(history_.Caption, "a random value");
}

TEST_F(EditCommandsTest, AllOthersToTheBaseIsRepeatedAsAllRandom) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  random_.Next();
  Go(2, 3);
  Do("SetAllRem");
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("5 5 5 / 5 5 3 / 5 5 5"));
  EXPECT_EQ(history_.Tag, "4");
  EXPECT_EQ(history_.Caption, "entire grid to random values");
  edit_.Redo();
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("5 1 3 / 5 1 3 / 5 1 3"));
  Show("1 2 3 / 4 5 6 / 7 8 9", 15, 1);
  Do("SetAllRem");
  EXPECT_EQ(ShownRows(board_.grid), slow::Rows(3, {1, 1, 1}));
  EXPECT_TRUE(board_.UntouchedBase) << "not undone";
}

TEST_F(EditCommandsTest, AdjustsACellToItsLines) {
  struct Case {
    const char* rows;
    int row, column;
    const char* item;
    const char* written;
    const char* said;
  };
  const Case cases[] = {
      {"8 1 0 / 3 5 7 / 4 9 9", 1, 3, "correctrowx", "6", ""},
      {"2.5 6 6 / 3 5 7 / 4 9 2", 1, 1, "correctrowx", "3", ""},
      {"1 1 6 / 9 5 7 / 8 9 2", 1, 1, "correctcolx", "1", "cannot adjust, value will be <0"},
      {"1 1 6 / 9 5 7 / 6 9 2", 1, 1, "correctcolx", "0", ""},
      {"8 1 6 / 3 5 7 / 4 9 2", 1, 2, "correctdiagx", "1", "cell is not on a diagonal"},
      {"9 1 6 / 3 5 7 / 4 9 2", 1, 1, "correctdiagx", "8", ""},
      {"8 1 6 / 3 5 7 / 9 9 2", 3, 1, "correctdiagx", "4", ""},
      {"1 1 6 / 3 9 7 / 4 9 2", 2, 2, "correctdiagx", "5", ""},
      {"8 1 6 / 3 5 7 / 4 9 3", 1, 1, "correctrowx", "8", ""}};
  for (const Case& c : cases) {
    Show(c.rows);
    history_ = {};
    Go(c.row, c.column);
    Do(c.item);
    const auto said = dialogs_.Take();
    EXPECT_EQ(At(c.row, c.column), c.written) << c.rows;
    EXPECT_EQ(said.empty() || said[0] == kWin ? "" : said[0], c.said) << c.rows;
    EXPECT_EQ(history_.Caption, *c.said ? "Redo last command" : Command(c.item).Caption);
    EXPECT_EQ(Where(), (std::pair{c.row, c.column}));
  }
}

}  // namespace
}  // namespace numorra
