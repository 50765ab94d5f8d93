#include "app/grid_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

#include "app/board/board.h"

namespace numorra {
namespace {

class GridViewTest : public testing::Test {
 protected:
  GridViewTest() {
    board_.GridSize = 50;
    board_.SetupBoard();
    board_.FillBoard(0);
    board_.ShowBoard();
    board_.grid.SetVisible(true);
    view_.resize(400, 300);
    view_.show();
    QCoreApplication::processEvents();
  }

  Board board_;
  GridView view_{board_.grid};
};

TEST_F(GridViewTest, FindsTheCellThatIsDrawnScrolledOrNot) {
  for (const int scrolled : {0, 1, 13, 26, 27, 500, 100000}) {
    view_.horizontalScrollBar()->setValue(scrolled);
    view_.verticalScrollBar()->setValue(scrolled / 2);
    for (int x = 0; x < view_.viewport()->width(); x += 7) {
      for (int y = 0; y < view_.viewport()->height(); y += 7) {
        const auto cell = view_.CellAt({x, y});
        ASSERT_TRUE(cell);
        EXPECT_TRUE(view_.CellRect(cell->y(), cell->x()).contains(x, y)) << x << "," << y;
      }
    }
  }
  EXPECT_FALSE(view_.CellAt({-1, 5}));
  board_.grid.SetVisible(false);
  EXPECT_FALSE(view_.CellAt({5, 5}));
}

TEST_F(GridViewTest, BringsCellsIntoViewBesideTheFixedLines) {
  for (const auto& [row, column] : {std::pair{50, 50}, {1, 1}, {25, 1}, {51, 0}, {1, 51}}) {
    view_.BringIntoView(row, column);
    const QRect cell = view_.CellRect(row, column);
    EXPECT_TRUE(view_.viewport()->rect().contains(cell)) << row << "," << column;
    EXPECT_EQ(view_.CellAt(cell.center()), QPoint(column, row));
  }
}

TEST_F(GridViewTest, RepaintsOnceWhenTheLockIsLifted) {
  struct PaintCounter : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) ++Paints;
      return false;
    }
    int Paints = 0;
  } counter;
  view_.viewport()->installEventFilter(&counter);
  {
    const RedrawLock lock(board_.grid);
    for (int i = 1; i < 50; ++i)
      board_.grid.SetText(i, i, "7");
    QCoreApplication::processEvents();
    EXPECT_EQ(counter.Paints, 0);
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(counter.Paints, 1);
}

TEST_F(GridViewTest, MarksTheCurrentCellWithoutHidingIt) {
  board_.MarkAllTotalsWrong();
  board_.grid.SetCurrent(2, 2);
  const QImage image = view_.viewport()->grab().toImage();
  const QRect cell = view_.CellRect(2, 2);
  int dark = 0;
  for (int x = cell.left() + 4; x < cell.right() - 4; ++x) {
    for (int y = cell.top() + 4; y < cell.bottom() - 4; ++y) {
      if (image.pixelColor(x, y).lightness() < 100) ++dark;
    }
  }
  EXPECT_GT(dark, 5) << "the number is in sight";
}

TEST(CellTexts, ShrinkUntilTheyFitAndSayWhenTheyCannot) {
  CellText texts(QFont(), 27);
  for (const char* text : {"", "7", "2500", "62525", "-1234"})
    EXPECT_TRUE(texts.Fits(text)) << text;
  EXPECT_FALSE(texts.Fits("123456789012"));
}

}  // namespace
}  // namespace numorra
