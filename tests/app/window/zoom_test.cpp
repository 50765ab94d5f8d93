#include "app/window/board/zoom.h"

#include <gtest/gtest.h>

#include <QScrollBar>

#include "support/window_fixture.h"

namespace numorra {
namespace {

class ZoomTest : public WindowTest {
 protected:
  void Trigger(const char* action) {
    Find<QAction>(action).trigger();
    QCoreApplication::processEvents();
  }
  int Side() { return window_.View().CellRect(1, 1).width(); }
  bool Scrolls() {
    return window_.View().verticalScrollBar()->maximum() > 0 ||
           window_.View().horizontalScrollBar()->maximum() > 0;
  }
};

TEST(ZoomSteps, AreEqualFactorsWithOneAndTwoAmongThem) {
  double zoom = 0.4;
  for (const int percent : {50, 71, 100, 141, 200, 283, 400, 566, 800, 800})
    EXPECT_EQ(std::lround(100 * (zoom = NextZoom(zoom, 1))), percent);
  EXPECT_EQ(NextZoom(1.2, 1), ZoomAtStep(1));
  EXPECT_EQ(NextZoom(1.2, -1), 1);
  EXPECT_EQ(NextZoom(0.3, -1), 0.3) << "not larger";
}

TEST_F(ZoomTest, CellsAndNumbersGrowAndTheMouseStillFindsThem) {
  Make("SolveManual", "11", "671");
  EXPECT_EQ(Side(), 26);
  const QImage plain = window_.View().Picture();
  Trigger("ZoomInx");
  Trigger("ZoomInx");
  EXPECT_NEAR(Side(), 53, 1);
  EXPECT_EQ(window_.View().Picture(), plain) << "copied at 100 %";
  EXPECT_TRUE(Scrolls());
  ClickCell(9, 10);
  EXPECT_EQ(TheGrid().CurrentRow() * 100 + TheGrid().CurrentColumn(), 910);
  QWheelEvent wheel({50, 50}, {50, 50}, {}, {0, -120}, Qt::NoButton, Qt::ControlModifier,
                    Qt::NoScrollPhase, false);
  for (int turn = 0; turn < 3; ++turn)
    QCoreApplication::sendEvent(window_.View().viewport(), &wheel);
  EXPECT_NEAR(Side(), 19, 1);
  QWheelEvent alone({50, 50}, {50, 50}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(window_.View().viewport(), &alone);
  EXPECT_NEAR(Side(), 19, 1) << "only scrolls";
  Trigger("NormalSizex");
  EXPECT_EQ(Side(), 26);
}

TEST_F(ZoomTest, TheWheelKeepsTheCellUnderTheMouse) {
  Make("SolveAuto", "50");
  GridView& view = window_.View();
  for (const QPoint mouse : {QPoint(300, 200), QPoint(120, 330)}) {
    const auto cellUnderMouse = [&] {
      for (int row = 1; row <= 50; ++row) {
        for (int column = 1; column <= 50; ++column) {
          if (view.CellRect(row, column).contains(mouse)) return std::pair(row, column);
        }
      }
      return std::pair(0, 0);
    };
    const auto [row, column] = cellUnderMouse();
    for (const int turned : {120, 120, -120}) {
      QWheelEvent wheel(mouse, mouse, {}, {0, turned}, Qt::NoButton, Qt::ControlModifier,
                        Qt::NoScrollPhase, false);
      QCoreApplication::sendEvent(view.viewport(), &wheel);
      const auto [rowNow, columnNow] = cellUnderMouse();
      EXPECT_NEAR(rowNow, row, 1);
      EXPECT_NEAR(columnNow, column, 1);
    }
  }
}

TEST_F(ZoomTest, FittingShowsTheWholeBoardAtEverySize) {
  for (const char* order : {"3", "11", "50"}) {
    Make("SolveAuto", order);
    if (!Find<QAction>("FitBoardx").isChecked()) Trigger("FitBoardx");
    for (const QSize size :
         {QSize(740, 700), QSize(1920, 1080), QSize(911, 517), QSize(400, 300)}) {
      window_.resize(size);
      QCoreApplication::processEvents();
      EXPECT_FALSE(Scrolls()) << order;
      const QRect last = window_.View().CellRect(TheGrid().Rows() - 1, TheGrid().Columns() - 1);
      EXPECT_TRUE(window_.View().viewport()->rect().contains(last));
      const int room = std::min(window_.View().width(), window_.View().height());
      EXPECT_GE(std::max(last.right(), last.bottom()), room - 4) << "as large as it can be";
    }
  }
  Trigger("ZoomInx");
  EXPECT_FALSE(Find<QAction>("FitBoardx").isChecked()) << "a manual zoom leaves it";
}

/// The current cell stays in its place on the screen, and a board that fits is not scrolled.
TEST_F(ZoomTest, ZoomsAboutTheCurrentCell) {
  const auto inSight = [this] {
    const QRect cell = window_.View().CellRect(TheGrid().CurrentRow(), TheGrid().CurrentColumn());
    return window_.View().viewport()->rect().contains(cell);
  };
  Make("SolveManual", "20", "4000");
  dialogs_.Take();
  for (const auto& [row, column] : {std::pair{1, 1}, {4, 9}, {12, 12}}) {
    Trigger("NormalSizex");
    ClickCell(row, column);
    for (int step = 0; step < 6; ++step) {
      Trigger(step < 4 ? "ZoomInx" : "ZoomOutx");
      EXPECT_TRUE(inSight()) << row << " " << step;
    }
  }
  ClickCell(1, 1);
  while (Side() > 14)
    Trigger("ZoomOutx");
  EXPECT_FALSE(Scrolls());
  EXPECT_EQ(window_.View().Scrolled(), QPoint());
}

/// Exactly large enough to fit without bars, and not with them.
TEST_F(ZoomTest, WhatFitsHasNoBars) {
  Make("SolveManual", "11", "671");
  auto& view = window_.View();
  const QRect last = view.CellRect(12, 12);
  for (const int over : {-5, 1}) {
    Trigger("FullScreenx");
    Trigger("FullScreenx");
    view.setFixedSize(last.right() + 1 - over, last.bottom() + 1 - over);
    QCoreApplication::processEvents();
    EXPECT_EQ(Scrolls(), over > 0);
  }
  view.setFixedSize(last.right() + 1, last.bottom() + 1);
  QCoreApplication::processEvents();
  EXPECT_FALSE(Scrolls()) << "coming from a smaller one";
}

/// Bars take their own space, and a fitted board follows.
TEST_F(ZoomTest, ARemarkCoversNothing) {
  window_.resize(900, 500);
  Make("SolveAuto", "5");
  Trigger("FitBoardx");
  const int side = Side();
  Trigger("Hintx");
  auto& bar = Find<QWidget>("RemarkBar");
  EXPECT_TRUE(bar.isVisible() && !bar.geometry().intersects(window_.View().geometry()));
  EXPECT_TRUE(window_.View().viewport()->rect().contains(window_.View().CellRect(6, 6)));
  EXPECT_LT(Side(), side);
  Click("CloseRemarkx");
  QCoreApplication::processEvents();
  EXPECT_EQ(Side(), side);
}

TEST_F(ZoomTest, FullScreenShowsTheBoardAndRestoresEverything) {
  Make("SolveManual", "5", "70");
  Trigger("ZoomInx");
  const int side = Side();
  Trigger("FullScreenx");
  EXPECT_FALSE(Find<QPushButton>("SolveAuto").isVisible());
  EXPECT_TRUE(window_.View().Fitting() && window_.View().isVisible());
  EXPECT_TRUE(Find<QWidget>("BoardState").isVisible());
  QTest::keyClick(&window_.View(), Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_TRUE(Find<QPushButton>("SolveAuto").isVisible());
  EXPECT_EQ(Side(), side);
  EXPECT_FALSE(window_.View().Fitting() || Find<QAction>("FullScreenx").isChecked());
}

/// A fitted board stands in the middle, and drawings and walks put their cells where its cells are.
TEST_F(ZoomTest, BoardDrawingAndWalkStandInOnePlace) {
  Make("SolveAuto", "5");
  Trigger("FitBoardx");
  const auto blockIn = [](const GridView& view) {
    const QRect block = view.CellRect(1, 1).united(view.CellRect(5, 5));
    return block.translated(view.viewport()->pos());
  };
  GridView& view = window_.View();
  const QRect block = blockIn(view);
  const int lines = view.CellRect(0, 0).united(view.CellRect(6, 6)).width();
  EXPECT_NEAR(view.viewport()->pos().x(), (view.width() - lines) / 2.0, 1);
  EXPECT_EQ(view.FittedBlock(view.size()), block);
  Trigger("BoardCriclesx");
  const QImage drawn = Find<QWidget>("Picture1").grab().toImage();
  const QRgb ground = drawn.pixel(2, 2);
  EXPECT_NE(drawn.pixel(block.topLeft() + QPoint(3, 3)), ground);
  EXPECT_NE(drawn.pixel(block.bottomRight() - QPoint(3, 3)), ground);
  EXPECT_EQ(drawn.pixel(block.topLeft() - QPoint(3, 3)), ground);
  EXPECT_EQ(drawn.pixel(block.bottomRight() + QPoint(3, 3)), ground);
}

TEST_F(ZoomTest, EscapeEndsTheMostRecent) {
  Make("SolveAuto", "4");
  Trigger("FullScreenx");
  const int side = Side();
  Trigger("Hintx");
  auto& remark = Find<QWidget>("RemarkBar");
  EXPECT_TRUE(remark.isVisible());
  EXPECT_GE(remark.font().pixelSize() * 1080, 28 * window_.screen()->size().height());
  EXPECT_EQ(Side(), side) << "the bar has room of its own";
  QTest::keyClick(&window_.View(), Qt::Key_Escape);
  EXPECT_FALSE(remark.isVisible());
  EXPECT_TRUE(Find<QAction>("FullScreenx").isChecked());
  QTest::keyClick(&window_.View(), Qt::Key_Escape);
  EXPECT_FALSE(Find<QAction>("FullScreenx").isChecked());
}

/// The desktop, or another command, may also end full screen.
TEST_F(ZoomTest, FullScreenThatEndsByItselfRestoresEverything) {
  Make("SolveAuto", "50");
  window_.View().ScrollTo({120, 90});
  Trigger("FullScreenx");
  EXPECT_EQ(window_.View().Scrolled(), QPoint());
  window_.setWindowState(Qt::WindowMaximized);
  QCoreApplication::processEvents();
  EXPECT_FALSE(Find<QAction>("FullScreenx").isChecked());
  EXPECT_TRUE(window_.isMaximized() && Find<QPushButton>("SolveAuto").isVisible());
  EXPECT_FALSE(window_.View().Fitting());
}

}  // namespace
}  // namespace numorra
