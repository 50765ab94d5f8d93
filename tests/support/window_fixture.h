#pragma once

#include <gtest/gtest.h>

#include <QScreen>
#include <QTest>
#include <QTimer>

#include "app/window/main_window.h"
#include "support/boards.h"
#include "support/invariants.h"
#include "support/stand_ins.h"

namespace numorra {

/// A clock that runs out of memory at a chosen reading.
struct UnluckyClock : TickingClock {
  using TickingClock::TickingClock;
  std::uint64_t NanosecondsSinceMidnight() override {
    if (LooksUntilMemoryIsRefused >= 0 && LooksUntilMemoryIsRefused-- == 0) throw std::bad_alloc();
    return TickingClock::NanosecondsSinceMidnight();
  }
  int LooksUntilMemoryIsRefused = -1;
};

/// A fresh window, operated through its controls as by a person; boxes are answered from a list.
class WindowTest : public testing::Test {
 protected:
  explicit WindowTest(World world = {}) : window_(session_, Scripted(world)) {
    window_.show();
    QCoreApplication::processEvents();
  }

  template <class Control>
  Control& Find(const char* name) {
    auto* control = window_.findChild<Control*>(name);
    if (!control) ADD_FAILURE() << "no control named " << name;
    return *control;
  }

  /// Clicks near the left edge, where every kind of button reacts.
  void Click(const char* button) {
    auto& control = Find<QAbstractButton>(button);
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(8, control.height() / 2));
  }

  void Type(const char* box, const char* text) {
    auto& edit = Find<QLineEdit>(box);
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    QTest::keyClicks(&edit, text);
  }

  /// Sets the size of a board: normal, or with a sum.
  void Make(const char* button, const std::string& size, const std::string& sum = {}) {
    Click(sum.empty() ? "Option3" : "Option4");
    Type("Text1", size.c_str());
    if (!sum.empty()) Type("Text4", sum.c_str());
    Click(button);
  }

  void ClickCell(int row, int column, Qt::MouseButton button = Qt::LeftButton) {
    window_.View().BringIntoView(row, column);
    QTest::mouseClick(window_.View().viewport(), button, {},
                      window_.View().CellRect(row, column).center());
  }

  /// Chooses an item of the board's context menu, opened on a cell.
  void Choose(const char* item, int row = 1, int column = 1) {
    ClickCell(row, column, Qt::RightButton);
    auto& menu = Find<QMenu>("ManualMenux");
    EXPECT_TRUE(menu.isVisible()) << "no menu at " << row << ", " << column;
    menu.close();
    auto& action = Find<QAction>(item);
    EXPECT_TRUE(action.isEnabled()) << item;
    action.trigger();
  }

  /// Checks what must hold after every command: the board is complete, and nothing is left over.
  void ExpectSettled() {
    EXPECT_EQ(WhyInvalid(window_.TheBoard()), "");
    EXPECT_TRUE(Find<QPushButton>("SolveAuto").isVisibleTo(&window_));
    EXPECT_FALSE(Find<QLabel>("IterationCount").isVisible());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  }

  /// Whether the screen equals a full repaint of the widget.
  bool IsSeenWhole(QWidget& widget) {
    QCoreApplication::processEvents();
    const QRect place(widget.mapTo(&window_, QPoint()), widget.size());
    const QImage screen = window_.screen()->grabWindow(window_.winId()).toImage();
    EXPECT_FALSE(screen.isNull());
    const auto comparable = [](const QImage& image) {
      return image.convertToFormat(QImage::Format_RGB32);
    };
    return comparable(screen.copy(place)) == comparable(widget.grab().toImage());
  }

  /// Runs a long command and acts at the first of its yields at which `due` holds. Returns whether
  /// there was one.
  template <class Command, class Due, class Act>
  static bool ActWithin(Command command, Due due, Act act) {
    QTimer look;
    bool acted = false;
    QObject::connect(&look, &QTimer::timeout, [&] {
      if (acted || !due()) return;
      acted = true;
      act();
    });
    look.start(0);
    command();
    return acted;
  }

  std::string SumBox() { return Find<QLineEdit>("Text4").text().toStdString(); }
  const Grid& TheGrid() { return window_.TheBoard().grid; }
  slow::Rows Rows() { return ShownRows(TheGrid()); }

  const World& Scripted(World& world) {
    world.TheDialogs = &dialogs_;
    return world;
  }

  UnluckyClock clock_{99};
  ScriptedDialogs dialogs_;
  Session session_{clock_};
  MainWindow window_;
};

}  // namespace numorra
