#include <gtest/gtest.h>

#include <QClipboard>

#include "app/board/position.h"
#include "support/window_fixture.h"

namespace numorra {
namespace {

class UndoTest : public WindowTest {
 protected:
  Position Now() { return PositionOf(window_.TheBoard()); }
  QString Text(const char* action) { return Find<QAction>(action).text().remove('&'); }

  /// Runs an action, undoes it and redoes it; the board is right each time.
  void ExpectStep(const std::string& name, const std::function<void()>& act) {
    SCOPED_TRACE(name);
    const Position before = Now();
    act();
    dialogs_.Take();
    const Position after = Now();
    ASSERT_TRUE(IsChange(before, after));
    EXPECT_EQ(Text("UndoMovex").toStdString(), "Undo " + name);
    Find<QAction>("UndoMovex").trigger();
    EXPECT_EQ(Now(), before);
    EXPECT_EQ(Text("RedoMovex").toStdString(), "Redo " + name);
    ExpectSettled();
    Find<QAction>("RedoMovex").trigger();
    EXPECT_EQ(Now(), after);
    EXPECT_EQ(dialogs_.Take(), Messages{}) << "recounted without a word";
    ExpectSettled();
  }
};

TEST_F(UndoTest, EveryCommandIsUndoneAndRedone) {
  EXPECT_FALSE(Find<QAction>("UndoMovex").isEnabled() || Find<QAction>("RedoMovex").isEnabled());
  ExpectStep("Auto", [this] { Make("SolveAuto", "4"); });
  ExpectStep("Manual", [this] { Make("SolveManual", "5", "80"); });
  ExpectStep("Auto", [this] { Make("SolveAuto", "6", "100"); });
  ExpectStep("Solve Again", [this] { Click("SolveAgain"); });
  ExpectStep("Diagonals", [this] { Click("DoCor1"); });
  ExpectStep("Edges", [this] { Click("DoCor2"); });
  dialogs_.Texts = {"14/3/20/15"};
  ExpectStep("4x4Set", [this] { Click("Set4x4"); });
  QGuiApplication::clipboard()->setText("1 2 3\n4 . 6\n7 8 9");
  ExpectStep("Paste", [this] { Find<QAction>("Pastex").trigger(); });
  ExpectStep("typing", [this] { QTest::keyClicks(&window_.View(), "72"); });
  ExpectStep("step",
             [this] { QTest::keyClick(&window_.View(), Qt::Key_Plus, Qt::KeypadModifier); });
  Make("SolveManual", "4", "80");
  QTest::keyClicks(&window_.View(), "7");
  QTest::keyClick(&window_.View(), Qt::Key_Return);
  ExpectStep("swap", [this] { ClickCell(3, 5), ClickCell(1, 5, Qt::RightButton); });
  ExpectStep("swap", [this] { ClickCell(5, 1), ClickCell(5, 2, Qt::RightButton); });
  ClickCell(1, 1);
  QTest::keyClicks(&window_.View(), "8");
  ClickCell(3, 2);
  ClickCell(1, 1);
  ClickCell(3, 2, Qt::RightButton);
  ExpectStep("Swap value", [this] { Find<QAction>("swapvaluex").trigger(); });
  for (const EditCommand& command : EditTable()) {
    if (command.Menu == EditGroup::Cells) continue;
    Make("SolveManual", "4", "80");
    ClickCell(1, 2);
    QTest::keyClicks(&window_.View(), "30");
    ClickCell(2, 2);
    QTest::keyClicks(&window_.View(), "29");
    QTest::keyClick(&window_.View(), Qt::Key_Right);
    QTest::keyClick(&window_.View(), Qt::Key_Left);
    ExpectStep(WordsFor(command, 20), [&] { Choose(command.Name, 2, 2); });
  }
  ExpectStep("Rotate 270d", [this] { Find<QAction>("redox").trigger(); });
}

TEST_F(UndoTest, ReachesTheBoardFromEverywhereAndDuringABuild) {
  Make("SolveManual", "3", "15");
  const Position manual = Now();
  QTest::keyClicks(&window_.View(), "4");
  Type("Text4", "99");
  QTest::keyClick(&Find<QLineEdit>("Text4"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Now(), manual) << "from the sum box";
  EXPECT_EQ(SumBox(), "99");
  QTest::keyClick(&Find<QLineEdit>("Text4"), Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(TheGrid().Text(1, 1), "4");
  Click("Command1");
  Find<QAction>("UndoMovex").trigger();
  EXPECT_TRUE(Find<Drawing>("Picture1").isVisible()) << "a drawing is drawn anew";
  Find<QAction>("UndoMovex").trigger();
  EXPECT_FALSE(window_.TheBoard().Shown() || Find<Drawing>("Picture1").isVisible());
  EXPECT_FALSE(Find<QAction>("UndoMovex").isEnabled() || Find<QAction>("SaveAsx").isEnabled());
}

}  // namespace
}  // namespace numorra
