#include "app/play/cell_entry.h"

#include "app/board/position.h"
#include "app/play/moves.h"
#include "support/play_harness.h"

namespace numorra {
namespace {

class CellEntryTest : public PlayTest {
 protected:
  void Type(const std::string& keys) {
    for (const char key : keys)
      entry_.TypeCharacter(key == '<' ? 8 : static_cast<char32_t>(key));
  }
};

TEST_F(CellEntryTest, SaysWhyAKeyIsNotTaken) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  EXPECT_EQ(entry_.TypeCharacter(U'.'), "cells take digits only");
  EXPECT_EQ(entry_.TypeCharacter(U'7'), "");
  board_.grid.SetText(1, 1, "12345678901234");
  EXPECT_EQ(entry_.TypeCharacter(U'5'), "a cell takes at most 14 digits");
  board_.TotalsChecked = false;
  EXPECT_EQ(entry_.TypeCharacter(U'7'), "press F9 to play on this board");
  EXPECT_EQ(entry_.TypeCharacter(U'x'), "");
}

TEST_F(CellEntryTest, TypingBuildsNumbers) {
  struct Case {
    const char *before, *keys, *after;
  };
  const Case cases[] = {{"7", "12", "12"},
                        {"72", "<12", "712"},
                        {"5", "<", ""},
                        {"5", "<<", ""},
                        {"5", "<3", "3"},
                        {"5", "-.a+ ", "5"},
                        {"5", "0", "0"},
                        {"5", "1x2", "12"},
                        {" 7 ", "<", ""},
                        {"-4", "<7", "-7"},
                        {"5", "1234567890123456789", "12345678901234"},
                        {"2.5", "<12", "2.12"}};
  for (const Case& c : cases) {
    Show("1 2 3 / 4 5 6 / 7 8 9");
    board_.grid.SetText(1, 1, c.before);
    Type(c.keys);
    EXPECT_EQ(At(1, 1), c.after) << c.before << " and " << c.keys;
    EXPECT_EQ(At(1, 0), "6") << "typing does not check";
  }
}

TEST_F(CellEntryTest, LeavingATypedCellChecksAndAnUntypedDoesNot) {
  Show("8 1 6 / 3 5 7 / 4 9 3");
  Go(3, 3);
  Type("2");
  EXPECT_EQ(At(3, 0), "16");
  Go(3, 2);
  EXPECT_EQ(dialogs_.Take(), Messages{kWin});
  EXPECT_EQ(At(3, 0), "15");
  EXPECT_EQ(Where(), (std::pair{3, 2}));
  Go(1, 1);
  EXPECT_TRUE(dialogs_.Take().empty()) << "said once";
  Type("<");
  Go(1, 2);
  EXPECT_EQ(At(1, 0), "7") << "an empty cell counts as 0";
}

/// After a recount without a message, a typed digit is still checked when its cell is left, and no
/// board is announced twice.
TEST_F(CellEntryTest, AWinIsAnnouncedOnceWhateverComesBetween) {
  const auto take = [this] { return dialogs_.Take() == Messages{kWin}; };
  Position typed;
  const std::function<void()> silent[] = {
      [] {}, [this] { RecountInPlace(board_); }, [this] { Do("rot90x"); },
      [this] { Do("flipd1x"), RecountInPlace(board_); },
      [&] { Restore(board_, Position()), Restore(board_, typed); }};
  for (const auto& recount : silent) {
    Show("8 1 6 / 3 5 7 / 4 9 3");
    Go(3, 3);
    Type("2");
    typed = PositionOf(board_);
    EXPECT_TRUE(board_.Typing());
    recount();
    EXPECT_EQ(dialogs_.Take(), Messages{});
    EXPECT_TRUE(board_.Typing());
    Go(3, 2);
    EXPECT_TRUE(take());
    EXPECT_FALSE(board_.Typing());
    const Position told = PositionOf(board_);
    entry_.PressEnter();
    Do("rot180x");
    entry_.PressEnter();
    Type("<");
    Restore(board_, told);
    entry_.PressEnter();
    EXPECT_EQ(dialogs_.Take(), Messages{}) << "told already";
    SwapRows(board_, dialogs_, 1, 2);
    EXPECT_EQ(dialogs_.Take(), Messages{});
    SwapRows(board_, dialogs_, 1, 2);
    EXPECT_TRUE(take()) << "solved anew";
  }
}

TEST_F(CellEntryTest, ASignWithoutDigitsIsAGap) {
  Show("-1 2 3 / 4 5 6 / 7 8 9");
  Type("<");
  EXPECT_EQ(At(1, 1), "-");
  EXPECT_TRUE(board_.HasGaps());
  Do("rot90x");
  EXPECT_EQ(At(1, 3), "") << "turned as a gap";
  Show("-1 2 3 / 4 5 6 / 7 8 9");
  Type("<");
  entry_.PressEnter();
  EXPECT_EQ(At(1, 1), "");
  EXPECT_EQ(At(1, 0), "5");
}

TEST_F(CellEntryTest, EnterChecksAndGoesDownInTheLastColumn) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  Type("9");
  entry_.PressEnter();
  EXPECT_EQ(At(1, 0), "14");
  EXPECT_EQ(Where(), (std::pair{2, 3}));
  entry_.PressEnter();
  entry_.PressEnter();
  EXPECT_EQ(Where(), (std::pair{1, 3})) << "the last row leads to the first";
  Type("4");
  EXPECT_EQ(At(1, 3), "4") << "a newly entered cell's text is replaced";
}

TEST_F(CellEntryTest, TheCurrentCellWrapsWhoeverMovesIt) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  const std::pair<std::pair<int, int>, std::pair<int, int>> moves[] = {
      {{0, 2}, {3, 2}}, {{4, 2}, {1, 2}}, {{2, 0}, {2, 3}}, {{2, 4}, {2, 1}}, {{0, 4}, {3, 1}}};
  for (const auto& [to, at] : moves) {
    Go(to.first, to.second);
    EXPECT_EQ(Where(), at);
  }
  board_.TotalsChecked = false;
  Go(0, 0);
  EXPECT_EQ(Where(), (std::pair{3, 3})) << "before the first check too";
}

TEST_F(CellEntryTest, KeypadStepsInTheVariableMode) {
  struct Case {
    const char* before;
    int sign;
    const char* after;
  };
  const Case cases[] = {{"7", 1, "8"},  {"7", -1, "6"},     {"1", -1, "1"}, {"0", -1, "-1"},
                        {"-1", 1, "0"}, {"2.5", -1, "1.5"}, {"x", 1, "1"},  {"", -1, "-1"}};
  for (const Case& c : cases) {
    Show("1 2 3 / 4 5 6 / 7 8 9");
    Go(2, 2);
    board_.grid.SetText(2, 2, c.before);
    c.sign > 0 ? entry_.KeypadPlus() : entry_.KeypadMinus();
    EXPECT_EQ(At(2, 2), c.after) << c.before;
    EXPECT_EQ(Where(), (std::pair{2, 2}));
    EXPECT_EQ(Val(At(2, 0)), 10 + Val(c.after)) << "checked";
  }
  board_.SolveMode = ModeNormal;
  entry_.KeypadPlus();
  EXPECT_EQ(At(2, 2), "-1");
}

TEST_F(CellEntryTest, AStepAnnouncesAWinOnceAndNeverMakesTheUntouchedBoard) {
  Show("8 1 6 / 3 5 7 / 4 9 2");
  Go(3, 3);
  Type("1");
  entry_.KeypadPlus();
  EXPECT_EQ(dialogs_.Take(), Messages{kWin});
  Show("5 5 5 / 5 6 5 / 5 5 5");
  Go(2, 2);
  entry_.KeypadMinus();
  EXPECT_EQ(At(2, 2), "6");
  EXPECT_FALSE(board_.UntouchedBase);
}

TEST_F(CellEntryTest, KeysDoNothingBeforeTheFirstCheck) {
  ShowRows(board_, "1 2 3 / 4 5 6 / 7 8 9");
  board_.SolveMode = ModeVariable;
  board_.ReturnTo(1, 1);
  Type("12<");
  entry_.KeypadPlus();
  entry_.PressEnter();
  EXPECT_EQ(At(1, 1), "1");
  EXPECT_EQ(Where(), (std::pair{1, 1}));
}

}  // namespace
}  // namespace numorra
