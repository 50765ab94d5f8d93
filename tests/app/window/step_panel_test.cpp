#include "app/window/panels/step_panel.h"

#include "generate/construction.h"
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
  static bool Near(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
               std::abs(a.blue() - b.blue()) <
           12;
  }
  bool Seen(const QString& text) {
    const auto labels = Find<QDockWidget>("StepPanel").findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* label) { return label->text() == text; });
  }
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
    EXPECT_TRUE(Sentence().starts_with(std::to_string(step + 1) + " ")) << Sentence();
  }
  EXPECT_FALSE(next.isEnabled() || Find<QPushButton>("PlayStepsx").isEnabled());
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

/// A step repaints only what it changes; the screen equals a full repaint.
TEST_F(StepPanelTest, ShowsEveryStepWhole) {
  Toggle();
  for (const int example : {0, 1, 2, 3, 8}) {
    Find<QComboBox>("WalkChoice").setCurrentIndex(example);
    Q_EMIT Find<QComboBox>("WalkChoice").activated(example);
    for (const int step : {1, 2, 3, 4, 6, 7, 5, 2, 1, 0}) {
      Find<QSlider>("StepSlider").setValue(step);
      EXPECT_TRUE(IsSeenWhole(*View().viewport())) << "step " << step << " of example " << example;
      const QImage whole = View().viewport()->grab().toImage();
      const WalkStep* done = View().TheWalk().Done();
      if (!done || !done->Arrow) continue;
      const auto [from, to] = *done->Arrow;
      const auto centre = [&](Place at) { return View().CellRect(at.Row, at.Column).center(); };
      const QLineF way(centre(from), centre(to));
      const auto ink = [&](double share) {
        int found = 0;
        for (int x = -3; x <= 3; ++x) {
          for (int y = -3; y <= 3; ++y) {
            const QColor pixel = whole.pixelColor(way.pointAt(share).toPoint() + QPoint(x, y));
            found += Near(pixel, QColor(200, 90, 0)) ? 1 : 0;
          }
        }
        return found;
      };
      EXPECT_GT(ink(0.5), 0) << "the arrow's shaft";
      EXPECT_EQ(ink(0) + ink(1), 0) << "numbers stay readable";
      const double side = View().CellRect(1, 1).width();
      EXPECT_GT(ink(1 - 0.36 * side / way.length()), ink(0.36 * side / way.length()))
          << "its head is where the step leads";
    }
  }
}

TEST_F(StepPanelTest, WalksSquaresOfTheConstructMenu) {
  for (const Construction* const construction : kConstructions) {
    const int order = construction->WhyNone(9).empty()    ? 9
                      : construction->WhyNone(10).empty() ? 10
                                                          : 8;
    Type("Text1", std::to_string(order).c_str());
    Find<QAction>(construction->Name).trigger();
    EXPECT_EQ(static_cast<int>(Rows().size()), order) << construction->Name;
    Toggle();
    EXPECT_EQ(Find<QComboBox>("WalkChoice").currentText(), "the square on the board");
    Find<QSlider>("StepSlider").setValue(View().TheWalk().Steps());
    EXPECT_EQ(ShownRows(View().Cells()), Rows());
    Toggle();
  }
}

TEST_F(StepPanelTest, PlaysExamplesAndEndsWithAChangeOfTheBoard) {
  Toggle();
  EXPECT_EQ(Find<QComboBox>("WalkChoice").count(), 9);
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

/// Everything that shows the board, or a drawing of it, ends a walk that covers it; zooming alone
/// acts on the walk.
TEST_F(StepPanelTest, SomethingIsAlwaysVisible) {
  const auto click = [this](const char* button) { return [this, button] { Click(button); }; };
  const auto trigger = [this](const char* item) {
    return [this, item] { Find<QAction>(item).trigger(); };
  };
  auto& drawing = Find<Drawing>("Picture1");
  const std::pair<const char*, std::function<void()>> deeds[] = {
      {"board", click("SolveManual")},     {"board", click("Command3")},
      {"board", trigger("CheckTotalsx")},  {"board", trigger("Hintx")},
      {"board", trigger("StandardFormx")}, {"drawing", click("Command1")},
      {"drawing", click("Command2")},      {"walk", trigger("ZoomInx")},
      {"walk", trigger("FitBoardx")},      {"walk", click("SolveRandum")}};
  for (const bool drawn : {false, true}) {
    for (const auto& [seen, deed] : deeds) {
      Make("SolveManual", "5");
      Click(drawn ? "Command1" : "Command4");
      Toggle();
      EXPECT_TRUE(View().isVisible());
      deed();
      QCoreApplication::processEvents();
      dialogs_.Take();
      EXPECT_EQ(View().isVisible(), seen == std::string("walk"));
      EXPECT_EQ(Find<QAction>("StepByStepx").isChecked(), View().isVisible());
      EXPECT_EQ(window_.View().isVisible() + drawing.isVisible() + View().isVisible(), 1);
      EXPECT_EQ(drawing.isVisible(), seen == std::string("drawing") ||
                                         (window_.TheBoard().OverlayShown && !View().isVisible()));
      if (View().isVisible()) Toggle();
    }
  }
}

TEST_F(StepPanelTest, ZoomAndStateLineAreTheWalks) {
  Make("SolveAuto", "4");
  const double zoom = window_.View().Zoom();
  Toggle();
  auto& state = Find<QWidget>("BoardState");
  EXPECT_EQ(state.accessibleName(), "4 x 4, sum 34: step 0 of 9");
  EXPECT_TRUE(Find<QAction>("FitBoardx").isChecked());
  const int side = View().CellRect(1, 1).width();
  Find<QAction>("ZoomOutx").trigger();
  EXPECT_LT(View().CellRect(1, 1).width(), side);
  EXPECT_FALSE(Find<QAction>("FitBoardx").isChecked());
  EXPECT_EQ(window_.View().Zoom(), zoom);
  Click("StepNextx");
  EXPECT_EQ(state.accessibleName(), "4 x 4, sum 34: step 1 of 9");
  const QImage picture = View().viewport()->grab().toImage();
  EXPECT_EQ(picture.pixelColor(View().CellRect(0, 2).topLeft() + QPoint(1, 1)),
            picture.pixelColor(View().CellRect(0, 2).topLeft() + QPoint(6, 6)))
      << "no frame around a total that is not there";
  Toggle();
  EXPECT_EQ(state.accessibleName(), "4 x 4, sum 34: magic, F9 to play");
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
  EXPECT_TRUE(Seen("step 2 of 25, 1 of 3 right"));
  Find<QSlider>("StepSlider").setValue(25);
  EXPECT_TRUE(Seen("step 25 of 25, 1 of 3 right"));
  Find<QCheckBox>("AskMex").setChecked(false);
  EXPECT_TRUE(Seen("step 25 of 25"));
}

}  // namespace
}  // namespace numorra
