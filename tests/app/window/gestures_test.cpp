#include <QClipboard>
#include <QPointingDevice>
#include <QToolButton>

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

  /// One device for all tests: the toolkit keeps devices until the process ends.
  static QPointingDevice* Finger() {
    static QPointingDevice* const finger = QTest::createTouchDevice();
    return finger;
  }

  QPointingDevice* finger_ = Finger();
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

/// The puzzle has a wrong order of 1 and 6, and a gap. Fingers alone put that right.
TEST_F(GesturesTest, APuzzleIsSolvedByTouch) {
  const auto tap = [this](QPoint at) {
    Touch().press(0, at, &window_);
    Touch().release(0, at, &window_);
  };
  const auto pad = [this] { return window_.findChild<QFrame*>("NumberPad"); };
  const auto press = [&](const char* name) {
    auto& key = Find<QToolButton>(name);
    const double millimetres = 25.4 / window_.logicalDpiX();
    EXPECT_GE(std::min(key.width(), key.height()) * millimetres, 9) << name;
    tap(key.mapTo(&window_, key.rect().center()));
  };
  tap(InWindow(Middle({1, 1})));
  EXPECT_FALSE(pad()) << "a given number";
  const std::pair<Place, std::vector<const char*>> entries[] = {
      {{2, 1}, {"Pad7", "PadBackspace", "Pad3"}}, {{1, 2}, {"Pad1"}}, {{1, 3}, {"Pad6"}}};
  for (const auto& [cell, keys] : entries) {
    tap(InWindow(Middle(cell)));
    ASSERT_TRUE(pad() && pad()->isVisible());
    EXPECT_TRUE(window_.rect().contains(pad()->geometry()));
    EXPECT_FALSE(pad()->geometry().contains(InWindow(Middle(cell))));
    for (const char* key : keys)
      press(key);
    EXPECT_EQ(dialogs_.Take(), Messages()) << "before it is done";
    press("PadDone");
    EXPECT_FALSE(pad()->isVisible());
  }
  EXPECT_EQ(Numbers(), "816357492");
  EXPECT_EQ(dialogs_.Take(), Messages{"WELL DONE, YOU GOT IT"});
}

/// Clicks open the pad only for those who wish, and another current cell closes it.
TEST_F(GesturesTest, AClickOpensThePadIfTheMenuSaysSo) {
  ClickCell(1, 2);
  EXPECT_FALSE(window_.findChild<QFrame*>("NumberPad"));
  Find<QAction>("NumberPadx").trigger();
  ClickCell(1, 2);
  const auto& pad = Find<QFrame>("NumberPad");
  EXPECT_TRUE(pad.isVisible());
  QTest::keyClick(&window_.View(), Qt::Key_Right);
  EXPECT_FALSE(pad.isVisible());
}

}  // namespace
}  // namespace numorra
