#include <QDockWidget>

#include "support/window_fixture.h"

namespace numorra {
namespace {

/// The window's place and size while panels and states come and go.
class RoomTest : public WindowTest {
 protected:
  void Trigger(const char* action) {
    Find<QAction>(action).trigger();
    QCoreApplication::processEvents();
  }
  bool IsSettled(QSize size) {
    return QTest::qWaitFor([&] { return window_.size() == size; }, 2000);
  }
  void ExpectOnScreen() {
    QCoreApplication::processEvents();
    const QRect screen = window_.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window_.frameGeometry()))
        << window_.frameGeometry().bottom() << " of " << screen.bottom();
  }
};

TEST_F(RoomTest, PanelsReturnTheirRoomWhateverTheWindowStateMeanwhile) {
  window_.resize(500, 500);
  const QSize own = window_.size();
  Trigger("Propertiesx");
  const QSize wider = window_.size();
  EXPECT_GT(wider.width(), own.width());
  Trigger("FullScreenx");
  Trigger("FullScreenx");
  EXPECT_TRUE(IsSettled(wider));
  QTest::qWait(150);
  EXPECT_EQ(window_.size(), wider);
  for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
    window_.setWindowState(state);
    Find<QDockWidget>("PropertiesPanel").setVisible(state == Qt::WindowFullScreen);
    QTest::qWait(150);
    window_.setWindowState(Qt::WindowNoState);
    EXPECT_TRUE(IsSettled(state == Qt::WindowMaximized ? own : wider))
        << window_.width() << " x " << window_.height();
  }
}

/// The desktop may still report older states when the player asks for new ones.
TEST_F(RoomTest, FullScreenEndsAsItBeganHoweverOftenItIsAskedFor) {
  auto& column = Find<QPushButton>("SolveAuto");
  auto& mark = Find<QAction>("FullScreenx");
  for (const Qt::WindowStates before :
       {Qt::WindowStates(), Qt::WindowStates(Qt::WindowMaximized)}) {
    window_.setWindowState(before);
    for (int press = 0; press < 4; ++press)
      Trigger("FullScreenx");
    EXPECT_EQ(window_.windowState(), before);
    Trigger("FullScreenx");
    window_.setWindowState(before);
    EXPECT_TRUE(column.isVisible() && !mark.isChecked());
    window_.setWindowState(before | Qt::WindowFullScreen);
    EXPECT_TRUE(!column.isVisible() && mark.isChecked());
    QTest::keyClick(&window_.View(), Qt::Key_Escape);
    EXPECT_TRUE(column.isVisible() && !mark.isChecked());
    EXPECT_EQ(window_.windowState(), before);
  }
}

TEST_F(RoomTest, TheWholeWindowStaysOnTheScreen) {
  const QRect screen = window_.screen()->availableGeometry();
  const QSize sizes[] = {{740, 700}, screen.size() - QSize(20, 20), {400, 300}};
  for (const QSize size : sizes) {
    for (const char* panel : {"StepByStepx", "Propertiesx"}) {
      window_.resize(size);
      const QSize whole = window_.frameGeometry().size();
      window_.move(screen.bottomRight() - QPoint(whole.width() - 1, whole.height() - 1));
      ExpectOnScreen();
      Trigger(panel);
      ExpectOnScreen();
      EXPECT_TRUE(panel[0] == 'P' || Find<QPushButton>("StepNextx").isVisible());
      Trigger(panel);
      ExpectOnScreen();
    }
  }
}

}  // namespace
}  // namespace numorra
