#include "app/window/main_window.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMessageBox>
#include <QMimeData>
#include <QScrollBar>
#include <QTimer>

#include "app/window/frames/column_scroller.h"
#include "support/window_fixture.h"

namespace numorra {
namespace {

TEST_F(WindowTest, OpensWithAProposalAndNoBoard) {
  const double size = Find<QLineEdit>("Text1").text().toDouble();
  EXPECT_GE(size, 3);
  EXPECT_LE(size, 14);
  EXPECT_EQ(SumBox(), std::to_string(static_cast<int>(size * (size * size + 1) / 2)));
  EXPECT_FALSE(TheGrid().Visible() || window_.TheBoard().Shown());
  EXPECT_FALSE(Find<QLineEdit>("Text4").isEnabled());
  EXPECT_EQ(window_.windowTitle(), "Numorra");
}

TEST_F(WindowTest, ControlsScrollInALowWindowWithNothingCovered) {
  window_.resize(700, 420);
  QCoreApplication::processEvents();
  const auto& button = Find<QPushButton>("SolveManual");
  const auto& bar = *window_.findChild<ColumnScroller*>()->verticalScrollBar();
  EXPECT_TRUE(bar.isVisible());
  EXPECT_LE(button.mapTo(&window_, QPoint(button.width(), 0)).x(),
            bar.mapTo(&window_, QPoint()).x());
}

TEST_F(WindowTest, TheBoardFillsItsFrameUpToTheGivenDistances) {
  Make("SolveAuto", "50");
  for (const QSize size : {QSize(740, 700), QSize(1200, 900), QSize(400, 300)}) {
    window_.resize(size);
    QCoreApplication::processEvents();
    const auto& frame = Find<QGroupBox>("Frame1");
    const GridView& view = window_.View();
    const QPoint corner = view.mapTo(&window_, QPoint(view.width(), view.height()));
    const QPoint edge = frame.mapTo(&window_, QPoint(frame.width(), frame.height()));
    EXPECT_EQ(edge - corner, QPoint(8, 8)) << "120 twips";
    EXPECT_EQ(QPoint(window_.width(), window_.height()) - edge, QPoint(8, 8));
  }
}

TEST_F(WindowTest, AutoRefusesSizesItCannotBuildAndKeepsTheBoard) {
  Make("SolveAuto", "5");
  const auto before = Rows();
  const std::pair<const char*, const char*> cases[] = {
      {"51", "grid size should be 50x50 or smaller"},
      {"99999", "grid size should be 50x50 or smaller"},
      {"0", "Invalid property value"},
      {"", "Invalid property value"},
      {"-3", "Invalid property value"},
      {"-99999", "Overflow"}};
  for (const auto& [size, message] : cases) {
    Make("SolveAuto", size);
    EXPECT_EQ(dialogs_.Take(), Messages{message}) << size;
    EXPECT_EQ(Rows(), before);
    ExpectSettled();
  }
}

TEST_F(WindowTest, TheSumFollowsTheSizeOnlyInTheNormalMode) {
  Type("Text1", "4");
  EXPECT_EQ(SumBox(), "34");
  Click("Option4");
  EXPECT_TRUE(Find<QLineEdit>("Text4").isEnabled());
  EXPECT_EQ(SumBox(), "34");
  Type("Text1", "5");
  EXPECT_EQ(SumBox(), "34");
  Click("Option3");
  EXPECT_EQ(SumBox(), "65");
}

/// The texts of the menu's items match what they do and what is recorded; its symmetries are
/// repeated.
TEST_F(WindowTest, CommandsOfTheMenuAreRecordedAndRepeated) {
  const char* const items[] = {"Set2Max",     "set2Min",     "set2Ran",      "Set2allran",
                               "correctrowx", "correctcolx", "correctdiagx", "Set2Cellvaluex",
                               "flipvx",      "fliphx",      "flipd1x",      "flipd2x",
                               "rot90x",      "rot180x",     "rot270x"};
  auto& redox = Find<QAction>("redox");
  Make("SolveManual", "4", "40");
  EXPECT_EQ(redox.text(), "Redo last command");
  const auto first = Rows();
  Choose("redox");
  EXPECT_EQ(Rows(), first) << "nothing to repeat yet";
  for (int code = 1; code <= 15; ++code) {
    const char* item = items[code - 1];
    const auto before = Rows();
    Choose(item, 2, 2);
    EXPECT_EQ(redox.property("tag").toInt(), code);
    EXPECT_EQ(redox.text(), code == 8 ? "set value to 10" : Find<QAction>(item).text()) << item;
    Choose("transx");
    EXPECT_EQ(redox.property("tag").toInt(), code) << "Transpose records nothing";
    if (code < 9) continue;
    EXPECT_NE(Rows(), before) << item;
    Choose("redox");
    EXPECT_EQ(Rows() == before, code != 13 && code != 15) << item << ": twice is back again";
  }
}

TEST_F(WindowTest, TheClipboardTakesAndGivesTheBoard) {
  Find<QAction>("Copyx").trigger();
  Make("SolveAuto", "50");
  const auto square = Rows();
  Find<QAction>("Copyx").trigger();
  const auto* copied = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->text().count('\t'), 50 * 49);
  EXPECT_EQ(qvariant_cast<QImage>(copied->imageData()).width(),
            window_.View().CellRect(0, 52).left());
  Find<QAction>("CopyNumbersx").trigger();
  EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasImage());
  Click("SolveManual");
  dialogs_.Take();
  Find<QAction>("Pastex").trigger();
  EXPECT_EQ(dialogs_.Take(), Messages{"WELL DONE, YOU GOT IT"});
  EXPECT_EQ(Rows(), square);
  EXPECT_TRUE(Find<QRadioButton>("Option4").isChecked());
  EXPECT_EQ(SumBox(), "62525");
  QGuiApplication::clipboard()->setText("no square");
  Find<QAction>("Pastex").trigger();
  EXPECT_EQ(dialogs_.Take().size(), 1U);
  EXPECT_EQ(Rows(), square);
}

/// Closing a box with Esc or its frame means "No", or "OK" if there is no choice.
TEST(RealBoxes, SpeakUnderTheApplicationTitleAndMayBeLeft) {
  SystemClock clock;
  Session session(clock);
  MainWindow window(session);
  window.show();
  window.findChild<QRadioButton*>("Option4")->click();
  window.findChild<QLineEdit*>("Text4")->setText("3000");
  const std::pair<const char*, const char*> cases[] = {
      {"51", "Numorra: grid size should be 50x50 or smaller"},
      {"30", "Numorra: solution may take some time - continue?"}};
  for (const auto& [size, expected] : cases) {
    for (const bool byKey : {true, false}) {
      window.findChild<QLineEdit*>("Text1")->setText(size);
      QString shown;
      QTimer::singleShot(0, &window, [&shown, byKey] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        shown = box->windowTitle() + ": " + box->text();
        byKey ? QTest::keyClick(box, Qt::Key_Escape) : static_cast<void>(box->close());
      });
      QTest::mouseClick(window.findChild<QPushButton*>("SolveAuto"), Qt::LeftButton);
      EXPECT_EQ(shown, expected);
      EXPECT_FALSE(window.TheBoard().Shown());
    }
  }
}

TEST_F(WindowTest, ControlsLieSideBySideInTheirFrames) {
  for (const auto* frame : window_.centralWidget()->findChildren<QGroupBox*>()) {
    if (frame->objectName() == "Frame1") continue;  // its board has bars over it
    std::vector<QRect> taken;
    for (const auto* control : frame->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (!control->isVisible()) continue;
      const QRect place = control->geometry();
      EXPECT_TRUE(frame->rect().contains(place)) << control->objectName().toStdString();
      for (const QRect& other : taken)
        EXPECT_FALSE(other.intersects(place)) << control->objectName().toStdString();
      taken.push_back(place);
    }
    EXPECT_FALSE(taken.empty()) << frame->title().toStdString();
  }
}

/// In full screen the buttons are hidden, but the menu still presses them.
TEST_F(WindowTest, TheBoardMenuPressesTheButtons) {
  EXPECT_FALSE(Find<QAction>("BoardDiagonalsx").isEnabled())
      << "as its button, in a disabled frame";
  Find<QAction>("FullScreenx").trigger();
  Type("Text1", "5");
  Find<QAction>("BoardAutox").trigger();
  EXPECT_EQ(window_.TheBoard().GridSize, 5);
  EXPECT_TRUE(window_.TheBoard().Shown());
  Find<QAction>("BoardCriclesx").trigger();
  EXPECT_TRUE(window_.TheBoard().OverlayShown);
  Find<QAction>("BoardClearx").trigger();
  EXPECT_FALSE(window_.TheBoard().OverlayShown);
  Find<QRadioButton>("Option4").click();
  Type("Text4", "100");
  Find<QAction>("BoardAutox").trigger();
  for (const char* item : {"BoardAgainx", "BoardDiagonalsx", "BoardEdgesx"}) {
    auto& action = Find<QAction>(item);
    EXPECT_TRUE(action.isEnabled()) << item;
    const Position before = PositionOf(window_.TheBoard());
    action.trigger();
    EXPECT_TRUE(IsChange(before, PositionOf(window_.TheBoard()))) << item;
  }
}

}  // namespace
}  // namespace numorra
