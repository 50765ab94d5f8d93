#include "app/window/board/grid_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>

#include "support/window_fixture.h"

namespace numorra {
namespace {

using MirrorTest = WindowTest;

class GridViewTest : public testing::Test {
 protected:
  GridViewTest() {
    ShowCounted(board_, 50);
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

/// On a desktop that is read from right to left, the window is mirrored and the board is not.
TEST_F(MirrorTest, MirrorsAllButTheBoard) {
  Make("SolveAuto", "4");
  const auto isLeft = [this] {
    const QPoint board = window_.View().mapToGlobal(QPoint());
    return Find<QWidget>("SolveAuto").mapToGlobal(QPoint()).x() < board.x();
  };
  const QImage board = window_.View().Picture();
  EXPECT_TRUE(isLeft());
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  QCoreApplication::processEvents();
  EXPECT_FALSE(isLeft());
  EXPECT_EQ(window_.View().Picture(), board);
  const QPoint first = window_.View().CellRect(1, 1).topLeft();
  QTest::keyClick(&window_.View(), Qt::Key_Right);
  EXPECT_EQ(TheGrid().CurrentColumn(), 2);
  EXPECT_GT(window_.View().CellRect(1, 2).left(), first.x());
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(CellTexts, ShrinkUntilTheyFitAndSayWhenTheyCannotBeRead) {
  CellText texts(QFont(), 27);
  for (const char* text : {"", "7", "250", "2500"})
    EXPECT_TRUE(texts.Readable(text)) << text;
  for (const char* text : {"12345678", "123456789012"})
    EXPECT_FALSE(texts.Readable(text)) << text;
}

}  // namespace
}  // namespace numorra
