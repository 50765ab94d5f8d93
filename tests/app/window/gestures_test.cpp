#include <QClipboard>
#include <QPointingDevice>

#include "support/window_fixture.h"

namespace numorra {
namespace {

/// A puzzle with a given 8 and the player's own 6 and 1, operated by mouse and by finger.
class GesturesTest : public WindowTest {
 protected:
  GesturesTest() {
    QGuiApplication::clipboard()->setText(
        "{\"rows\": [[8, 6, 1], [null, 5, 7], [4, 9, 2]], \"rules\": \"normal\", \"total\": 15,"
        " \"givens\": [[true, false, false], [false, true, true], [true, true, true]]}");
    Find<QAction>("Pastex").trigger();
    QCoreApplication::processEvents();
  }

  QWidget* Cells() { return window_.View().viewport(); }
  QPoint Middle(Place cell) { return window_.View().CellRect(cell.Row, cell.Column).center(); }

  std::string Numbers() {
    std::string numbers;
    ForEachCell(3, [&](int row, int column) {
      const std::string text = TheGrid().Text(row, column);
      numbers += text.empty() ? "-" : text;
    });
    return numbers;
  }

  void MoveTo(QPoint at) {
    QMouseEvent move(QEvent::MouseMove, at, Cells()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                     {});
    QCoreApplication::sendEvent(Cells(), &move);
  }
  void Drag(QPoint from, QPoint to) {
    QTest::mousePress(Cells(), Qt::LeftButton, {}, from);
    MoveTo(to);
    QTest::mouseRelease(Cells(), Qt::LeftButton, {}, to);
  }

  QTest::QTouchEventWidgetSequence Touch() { return QTest::touchEvent(&window_, finger_); }
  QPoint InWindow(QPoint at) { return Cells()->mapTo(&window_, at); }

  QPointingDevice* finger_ = QTest::createTouchDevice();
};

TEST_F(GesturesTest, ANumberIsDraggedToAnotherOrToAGap) {
  const struct {
    const char* Why;
    QPoint From;
    QPoint To;
    const char* After;
    std::size_t Told;
  } drags[] = {{"a swap", Middle({1, 2}), Middle({1, 3}), "816-57492", 0},
               {"a move to a gap", Middle({1, 3}), Middle({2, 1}), "81-657492", 0},
               {"from a gap", Middle({1, 3}), Middle({1, 2}), "81-657492", 0},
               {"to a given", Middle({1, 2}), Middle({1, 1}), "81-657492", 1},
               {"of a given", Middle({1, 1}), Middle({1, 2}), "81-657492", 1},
               {"of a total", Middle({0, 2}), Middle({1, 2}), "81-657492", 0},
               {"to a total", Middle({1, 2}), Middle({0, 2}), "81-657492", 0},
               {"off the board", Middle({1, 2}), Middle({1, 2}) + QPoint(0, -900), "81-657492", 0},
               {"a press that trembles", Middle({1, 2}) + QPoint(11, 0),
                Middle({1, 2}) + QPoint(17, 0), "81-657492", 0}};
  for (const auto& drag : drags) {
    SCOPED_TRACE(drag.Why);
    Drag(drag.From, drag.To);
    EXPECT_EQ(Numbers(), drag.After);
    EXPECT_EQ(dialogs_.Take().size(), drag.Told);
  }
  EXPECT_EQ(Find<QAction>("UndoMovex").text(), "&Undo Swap value");
  Find<QAction>("UndoMovex").trigger();
  EXPECT_EQ(Numbers(), "816-57492");
}

TEST_F(GesturesTest, AFingerDragsAndOpensTheMenuByALongPress) {
  const QPoint from = InWindow(Middle({1, 2}));
  const QPoint to = InWindow(Middle({2, 1}));
  Touch().press(0, from, &window_);
  Touch().move(0, to, &window_);
  Touch().release(0, to, &window_);
  EXPECT_EQ(Numbers(), "8-1657492");
  auto& menu = Find<QMenu>("ManualMenux");
  Touch().press(0, to, &window_);
  EXPECT_TRUE(QTest::qWaitFor([&menu] { return menu.isVisible(); }));
  Touch().release(0, to, &window_);
  EXPECT_TRUE(menu.isVisible());
  EXPECT_EQ(TheGrid().CurrentRow(), 2);
}

}  // namespace
}  // namespace numorra
