#include <gtest/gtest.h>

#include <QTimer>

#include "support/window_fixture.h"

namespace numorra {
namespace {

TEST_F(WindowTest, EnterInABoxPressesAutoAndARefusalClearsTheCount) {
  Click("Option4");
  Type("Text4", "70");
  Type("Text1", "7");
  QTest::keyClick(&Find<QLineEdit>("Text1"), Qt::Key_Return);
  EXPECT_EQ(slow::WhyNotMagic(Rows(), 70), "");
  Type("Text4", "77");
  QTest::keyClick(&Find<QLineEdit>("Text4"), Qt::Key_Enter);
  EXPECT_EQ(slow::WhyNotMagic(Rows(), 77), "");
  for (const char* button : {"SolveManual", "SolveAuto"}) {
    EXPECT_NE(Find<QLabel>("IterationCount").text(), "");
    Type("Text1", "51");
    Click(button);
    EXPECT_EQ(dialogs_.Take(), Messages{"grid size should be 50x50 or smaller"});
    EXPECT_EQ(Find<QLabel>("IterationCount").text(), "");
    Make("SolveAuto", "7", "77");
  }
}

TEST_F(WindowTest, ButtonsAndMenusAreUpToDateWhenACommandFails) {
  Make("SolveManual", "3", "15");
  Choose("rot90x");
  ClickCell(1, 1);
  Choose("Set2Cellvaluex");
  QTest::keyClick(&window_.View(), Qt::Key_Backspace);
  Choose("Set2Max");
  EXPECT_EQ(dialogs_.Take(), Messages{"Type mismatch"});
  EXPECT_EQ(Find<QAction>("redox").text(), "set value to 5");
  ExpectSettled();
}

TEST_F(WindowTest, ControlsAppearWithTheirMode) {
  const auto enabled = [this] {
    std::string names;
    for (const char* name : {"Frame2", "Frame6", "SolveAgain", "DoCor1"})
      if (Find<QWidget>(name).isEnabled()) names += name;
    return names;
  };
  EXPECT_EQ(enabled(), "");
  Click("Option4");
  EXPECT_EQ(enabled(), "Frame2Frame6");
  Make("SolveAuto", "6", "100");
  EXPECT_EQ(enabled(), "Frame2Frame6SolveAgainDoCor1");
  const auto first = Rows();
  Click("SolveAgain");
  EXPECT_NE(Rows(), first);
  Click("DoCor1");
  Click("DoCor2");
  EXPECT_EQ(slow::WhyNotMagic(Rows(), 100), "");
  Click("Option3");
  EXPECT_EQ(enabled(), "");
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
  EXPECT_FALSE(window_.TheBoard().TotalsChecked) << "it waits for F9";
}

/// A window whose builds process events at every yield.
class BusyWindowTest : public WindowTest {
 protected:
  BusyWindowTest() : WindowTest({.FrameMilliseconds = 0}) {
    dialogs_.Answers = {true, true};
    Make("SolveAuto", "30", "3000");
    Type("Text1", "50");
    Type("Text4", "5000");
    before_ = Rows();
  }

  void DuringTheBuild(const std::function<void()>& act) {
    QTimer::singleShot(0, &window_, [this, act] {
      EXPECT_TRUE(Find<QLabel>("IterationCount").isVisible());
      EXPECT_FALSE(Find<QPushButton>("SolveAuto").isVisible());
      EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
      act();
    });
    Click("SolveAuto");
    dialogs_.Take();
    ExpectSettled();
  }

  slow::Rows before_;
};

TEST_F(BusyWindowTest, TheNewerCommandWins) {
  DuringTheBuild([this] { Click("SolveRandum"); });
  EXPECT_TRUE(Rows() == before_);
  EXPECT_NE(Find<QLineEdit>("Text1").text(), "50");
  Make("SolveAuto", "12");
  EXPECT_EQ(slow::WhyNotNormal(Rows()), "");
}

TEST_F(BusyWindowTest, ATransformOfTheOldBoardWinsToo) {
  DuringTheBuild([this] { Find<QAction>("rot180x").trigger(); });
  EXPECT_EQ(Rows().front().front(), before_.back().back());
  EXPECT_EQ(Rows().size(), 30U);
}

TEST_F(BusyWindowTest, RefusedMemoryEndsOnlyTheBuild) {
  clock_.LooksUntilMemoryIsRefused = 0;
  Click("SolveAuto");
  EXPECT_EQ(dialogs_.Take().back(), "Out of memory");
  EXPECT_TRUE(Rows() == before_);
  ExpectSettled();
}

TEST_F(BusyWindowTest, ClosingEndsTheBuild) {
  DuringTheBuild([this] { window_.close(); });
  EXPECT_FALSE(window_.isVisible());
  EXPECT_TRUE(Rows() == before_);
}

}  // namespace
}  // namespace numorra
