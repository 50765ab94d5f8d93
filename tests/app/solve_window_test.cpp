#include <gtest/gtest.h>

#include <QInputDialog>
#include <QTimer>

#include "support/window_fixture.h"

namespace numorra {
namespace {

using Messages = std::vector<std::string>;

TEST_F(WindowTest, AutoReachesAnySumInTheVariableMode) {
  Click("Option4");
  for (int size = 3; size <= 50; ++size) {
    for (const int sum : {60 * size, 60 * size + 1}) {
      Type("Text1", std::to_string(size).c_str());
      Type("Text4", std::to_string(sum).c_str());
      if (size > 20) dialogs_.Answers = {true};
      Click("SolveAuto");
      const int total = size == 3 ? 180 : sum;
      ASSERT_EQ(slow::WhyNotMagic(Rows(), total), "") << size;
      EXPECT_EQ(TheGrid().Text(0, 0), std::to_string(total));
      EXPECT_EQ(dialogs_.Take().size(), size > 20 || (size == 3 && sum > 180) ? 1U : 0U);
      EXPECT_TRUE(Find<QPushButton>("SolveAuto").isVisible());
    }
  }
  EXPECT_NE(Find<QLabel>("IterationCount").text(), "");
}

TEST_F(WindowTest, ControlsAppearWithTheirMode) {
  for (const char* frame : {"Frame2", "Frame6"})
    EXPECT_FALSE(Find<QGroupBox>(frame).isEnabled());
  EXPECT_FALSE(Find<QPushButton>("SolveAgain").isEnabled());
  Click("Option4");
  for (const char* frame : {"Frame2", "Frame6"})
    EXPECT_TRUE(Find<QGroupBox>(frame).isEnabled());
  EXPECT_FALSE(Find<QPushButton>("SolveAgain").isEnabled());
  EXPECT_FALSE(Find<QPushButton>("DoCor1").isEnabled());
  Type("Text1", "6");
  Type("Text4", "100");
  Click("SolveAuto");
  const auto first = Rows();
  Click("SolveAgain");
  EXPECT_NE(Rows(), first);
  Click("DoCor1");
  Click("DoCor2");
  EXPECT_EQ(slow::WhyNotMagic(Rows(), 100), "");
  Click("Option3");
  EXPECT_FALSE(Find<QPushButton>("SolveAgain").isEnabled());
}

TEST_F(WindowTest, TheCornerBoxOffersWhatFitsWhenThePlayerComesToIt) {
  Click("Option4");
  Type("Text1", "7");
  Type("Text4", "70");
  auto& combo = Find<QComboBox>("Combo1");
  EXPECT_EQ(combo.count(), 1);
  combo.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(combo.count(), 20);
  EXPECT_EQ(combo.currentText(), "any");
  combo.setCurrentText("13");
  QFocusEvent back(QEvent::FocusIn, Qt::PopupFocusReason);
  QCoreApplication::sendEvent(&combo, &back);
  QFocusEvent window(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QCoreApplication::sendEvent(&combo, &window);
  EXPECT_EQ(combo.currentText(), "13");
  Click("SolveAuto");
  EXPECT_EQ(TheGrid().Text(1, 1), "13");
  EXPECT_EQ(slow::WhyNotMagic(Rows(), 70), "");
}

TEST_F(WindowTest, ABirthdayMakesASquareInTheVariableMode) {
  dialogs_.Texts = {"24,12,18,15"};
  Click("Set4x4");
  EXPECT_EQ(dialogs_.Take().size(), 1U);
  EXPECT_EQ(Rows()[0], (std::vector<double>{24, 12, 18, 15}));
  EXPECT_EQ(slow::WhyNotMagic(Rows(), 69), "");
  EXPECT_TRUE(Find<QRadioButton>("Option4").isChecked());
  EXPECT_EQ(SumBox(), "69");
  EXPECT_EQ(Find<QLineEdit>("Text1").text(), "4");
}

/// A window whose builds let events through at every yield.
class BusyWindowTest : public WindowTest {
 protected:
  BusyWindowTest() : WindowTest(0) {
    Click("Option4");
    Type("Text1", "30");
    Type("Text4", "3000");
    dialogs_.Answers = {true, true};
    Click("SolveAuto");
    Type("Text1", "50");
    Type("Text4", "5000");
    before_ = Rows();
  }

  void DuringTheBuild(std::function<void()> act) {
    QTimer::singleShot(0, &window_, [this, act] {
      EXPECT_TRUE(Find<QLabel>("IterationCount").isVisible());
      EXPECT_FALSE(Find<QPushButton>("SolveAuto").isVisible());
      EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
      act();
    });
    Click("SolveAuto");
    dialogs_.Take();
    EXPECT_TRUE(Find<QPushButton>("SolveAuto").isVisibleTo(&window_));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(TheGrid().RedrawLocked());
  }

  slow::Rows before_;
};

TEST_F(BusyWindowTest, TheNewerCommandWins) {
  DuringTheBuild([this] { Click("SolveRandum"); });
  EXPECT_EQ(Rows(), before_);
  EXPECT_NE(Find<QLineEdit>("Text1").text(), "50");
  Click("Option3");
  Type("Text1", "12");
  Click("SolveAuto");
  EXPECT_EQ(slow::WhyNotNormal(Rows()), "");
}

TEST_F(BusyWindowTest, ATransformOfTheOldBoardWinsToo) {
  DuringTheBuild([this] { Find<QAction>("rot180x").trigger(); });
  EXPECT_EQ(Rows().front().front(), before_.back().back());
  EXPECT_EQ(Rows().size(), 30U);
}

TEST_F(BusyWindowTest, ClosingEndsTheBuild) {
  DuringTheBuild([this] { window_.close(); });
  EXPECT_FALSE(window_.isVisible());
  EXPECT_EQ(Rows(), before_);
}

}  // namespace
}  // namespace numorra
