#include "app/window/step_panel.h"

#include "support/window_fixture.h"

namespace numorra {
namespace {

class StepPanelTest : public WindowTest {
 protected:
  void Toggle() {
    Find<QAction>("StepByStepx").trigger();
    QCoreApplication::processEvents();
  }
  WalkView& View() { return *window_.findChild<WalkView*>(); }
  std::string Sentence() { return Find<QLabel>("StepSentence").text().toStdString(); }
};

TEST_F(StepPanelTest, WalksTheSquareOnTheBoardByKeys) {
  Make("SolveAuto", "5");
  const slow::Rows built = Rows();
  Toggle();
  EXPECT_TRUE(View().isVisible());
  EXPECT_FALSE(window_.View().isVisible());
  EXPECT_EQ(Find<QComboBox>("WalkChoice").currentText(), "the square on the board");
  auto& next = Find<QPushButton>("StepNextx");
  EXPECT_FALSE(Find<QPushButton>("StepBackx").isEnabled());
  for (int step = 0; step < 25; ++step) {
    QTest::keyClick(&next, Qt::Key_Space);
    EXPECT_NE(Sentence(), "");
  }
  EXPECT_FALSE(next.isEnabled());
  EXPECT_EQ(ShownRows(View().Cells()), built);
  EXPECT_EQ(View().Cells().VerdictOf(0, 0), Verdict::Right);
  Click("StepBackx");
  EXPECT_EQ(View().TheWalk().At(), 24);
  Find<QSlider>("StepSlider").setValue(3);
  EXPECT_EQ(View().TheWalk().At(), 3);
  EXPECT_EQ(View().Cells().Outlined().size(), 1U);
  EXPECT_EQ(Rows(), built);
  EXPECT_EQ(Find<QAction>("UndoMovex").text(), "&Undo Auto") << "a walk is no change";
  Toggle();
  EXPECT_TRUE(window_.View().isVisible());
  ExpectSettled();
}

TEST_F(StepPanelTest, PlaysExamplesAndEndsWithAChangeOfTheBoard) {
  Toggle();
  EXPECT_EQ(Find<QComboBox>("WalkChoice").count(), 3);
  Find<QComboBox>("WalkChoice").setCurrentIndex(2);
  Q_EMIT Find<QComboBox>("WalkChoice").activated(2);
  EXPECT_EQ(View().TheWalk().Steps(), 11);
  Find<QSlider>("StepSpeed").setValue(10);
  Click("PlayStepsx");
  EXPECT_TRUE(QTest::qWaitFor([&] { return View().TheWalk().At() == 11; }, 5000));
  EXPECT_FALSE(Find<QPushButton>("PlayStepsx").isChecked());
  Make("SolveAuto", "4");
  EXPECT_FALSE(Find<QDockWidget>("StepPanel").isVisible());
  EXPECT_FALSE(Find<QAction>("StepByStepx").isChecked());
  EXPECT_TRUE(window_.View().isVisible());
}

TEST_F(StepPanelTest, AsksWhereNumbersGo) {
  Toggle();
  Find<QCheckBox>("AskMex").setChecked(true);
  Click("StepNextx");
  EXPECT_FALSE(Find<QPushButton>("StepNextx").isEnabled());
  const auto click = [&](int row, int column) {
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, View().CellRect(row, column).center());
  };
  EXPECT_EQ(View().TheWalk().At(), 1) << "where the first number goes follows from nothing";
  click(4, 4);
  QTest::keyClick(&View(), Qt::Key_Return);
  EXPECT_EQ(View().TheWalk().At(), 1);
  EXPECT_EQ(Sentence(),
            "No, not row 4, column 4: 2 goes up and to the right, out of the board at the top, so "
            "in at the bottom.");
  for (int step = 0; step < 5; ++step)
    QTest::keyClick(&View(), Qt::Key_Down);
  for (int step = 0; step < 4; ++step)
    QTest::keyClick(&View(), Qt::Key_Right);
  QTest::keyClick(&View(), Qt::Key_Left);
  const Place here = View().Current();
  EXPECT_EQ(here, (Place{5, 4}));
  QTest::keyClick(&View(), Qt::Key_Return);
  EXPECT_EQ(View().TheWalk().At(), 2);
}

}  // namespace
}  // namespace numorra
