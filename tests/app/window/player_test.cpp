#include <gtest/gtest.h>

#include "support/window_fixture.h"

namespace numorra {
namespace {

class PlayerTest : public WindowTest {
 protected:
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&window_.View(), key, modifiers);
  }

  std::pair<int, int> Where() { return {TheGrid().CurrentRow(), TheGrid().CurrentColumn()}; }
};

TEST_F(PlayerTest, SolvesASquareByKeysAlone) {
  Make("SolveManual", "3", "15");
  EXPECT_TRUE(window_.View().hasFocus());
  const char* const rows[] = {"816", "357", "492"};
  for (const char* row : rows) {
    for (const char* digit = row; *digit; ++digit) {
      EXPECT_TRUE(dialogs_.Said.empty());
      QTest::keyClicks(&window_.View(), QString(QChar(*digit)));
      Key(Qt::Key_Right);
    }
    Key(Qt::Key_Down);
  }
  EXPECT_EQ(dialogs_.Take(), Messages{"WELL DONE, YOU GOT IT"});
}

TEST_F(PlayerTest, TheMouseMarksSwapsAndOpensTheMenu) {
  Make("SolveManual", "4", "40");
  QTest::keyClicks(&window_.View(), "1");
  ClickCell(2, 5);
  EXPECT_EQ(TheGrid().Text(2, 5), "X");
  ClickCell(1, 5, Qt::RightButton);
  EXPECT_EQ(TheGrid().Text(2, 1), "1");
  EXPECT_EQ(TheGrid().Text(2, 5), "");
  ClickCell(2, 1, Qt::RightButton);
  auto& menu = Find<QMenu>("ManualMenux");
  EXPECT_TRUE(menu.isVisible());
  EXPECT_EQ(Find<QAction>("Set2Cellvaluex").text(), " 10");
  EXPECT_EQ(Find<QAction>("SetAllRem").text(), "all other values to 10");
  EXPECT_TRUE(Find<QAction>("SetValuex").isEnabled());
  menu.close();
  Key(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(menu.isVisible());
  menu.close();
  Key(Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(TheGrid().Text(2, 5), "X");
  Key(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(TheGrid().Text(5, 1), "X");
  Key(Qt::Key_Space);
  Key(Qt::Key_Right);
  Find<QAction>("swapvaluex").trigger();
  EXPECT_EQ(TheGrid().Text(2, 2), "1");
  Find<QAction>("swapvaluex").trigger();
  Choose("SetAllRem", 2, 1);
  EXPECT_EQ(Find<QAction>("redox").text(), "entire grid to random values");
  ClickCell(3, 3);
  EXPECT_EQ(Where(), (std::pair{3, 3}));
}

/// A square by Auto is changed by keys alone, once F9 has checked it.
TEST_F(PlayerTest, AGeneratedSquareIsPlayedOn) {
  Make("SolveAuto", "3");
  auto& state = Find<QWidget>("BoardState");
  EXPECT_EQ(state.accessibleName(), "3 x 3, sum 15: magic, F9 to play");
  window_.View().setFocus();
  QTest::keyClicks(&window_.View(), "7");
  const auto before = Rows();
  Find<QAction>("CheckTotalsx").trigger();
  EXPECT_EQ(dialogs_.Take(), Messages{}) << "silently";
  EXPECT_EQ(state.accessibleName(), "3 x 3, sum 15: magic");
  EXPECT_EQ(TheGrid().VerdictOf(1, 0), Verdict::Right);
  const char* const rows[] = {"294", "753", "618"};
  for (const char* row : rows) {
    for (const char* digit = row; *digit; ++digit) {
      QTest::keyClicks(&window_.View(), QString(QChar(*digit)));
      Key(Qt::Key_Right);
    }
    Key(Qt::Key_Down);
  }
  EXPECT_EQ(Rows() == before, before == ParseRows("2 9 4 / 7 5 3 / 6 1 8"));
  EXPECT_FALSE(dialogs_.Take().empty());
  EXPECT_EQ(state.accessibleName(), "3 x 3, sum 15: magic");
  EXPECT_TRUE(state.toolTip().endsWith("row 1, column 1: 2"));
}

TEST_F(PlayerTest, AnUncheckedBoardOpensTheShortMenu) {
  Click("SolveAuto");
  ClickCell(1, 1);
  EXPECT_TRUE(Find<QMenu>("ManualMenux").isVisible());
  EXPECT_FALSE(Find<QAction>("SetValuex").isEnabled());
  EXPECT_FALSE(Find<QAction>("Adjustvaluex").isEnabled());
  EXPECT_TRUE(Find<QAction>("redox").isEnabled());
  Find<QMenu>("ManualMenux").close();
}

TEST_F(PlayerTest, KeysMoveTheCurrentCellAndBringItIntoView) {
  Make("SolveManual", "50", "5000");
  dialogs_.Take();
  const auto visible = [&] {
    return window_.View().viewport()->rect().contains(
        window_.View().CellRect(Where().first, Where().second));
  };
  const std::pair<Qt::Key, std::pair<int, int>> moves[] = {
      {Qt::Key_Up, {50, 1}},  {Qt::Key_Left, {50, 50}}, {Qt::Key_Down, {1, 50}},
      {Qt::Key_Home, {1, 1}}, {Qt::Key_End, {1, 50}},   {Qt::Key_Right, {1, 1}}};
  for (const auto& [key, at] : moves) {
    Key(key);
    EXPECT_EQ(Where(), at);
    EXPECT_TRUE(visible());
  }
  Key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(Where(), (std::pair{50, 50}));
  const int cell = window_.View().CellRect(1, 1).height();
  const int page =
      window_.View().viewport()->height() / cell - 2;  // the fixed line and one to keep
  Key(Qt::Key_PageUp);
  EXPECT_NEAR(Where().first, 50 - page, 1);
  EXPECT_TRUE(visible());
  Key(Qt::Key_PageDown);
  EXPECT_EQ(Where().first, 50);
  for (int press = 0; press < 50; ++press)
    Key(Qt::Key_PageUp);
  EXPECT_EQ(Where().first, 1) << "and stays there";
  Key(Qt::Key_End, Qt::ControlModifier);
  Key(Qt::Key_Return);
  EXPECT_EQ(Where(), (std::pair{1, 50})) << "checked, then down from the last row";
  Key(Qt::Key_End, Qt::ControlModifier);
  Key(Qt::Key_PageUp);
  Key(Qt::Key_Plus, Qt::KeypadModifier);
  EXPECT_EQ(TheGrid().Text(Where().first, 50), "102");
  Key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(TheGrid().Text(Where().first, 50), "101");
  Key(Qt::Key_Up, Qt::AltModifier);
  Key(Qt::Key_Plus);
  EXPECT_EQ(TheGrid().Text(Where().first, 50), "102") << "not the keypad's";
  Click("SolveManual");
  dialogs_.Take();
  EXPECT_EQ(Where(), (std::pair{1, 1}));
  EXPECT_TRUE(visible()) << "a new board's first cell";
}

}  // namespace
}  // namespace numorra
