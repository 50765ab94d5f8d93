#include <cmath>
#include <gtest/gtest.h>

#include "support/window_fixture.h"

namespace numorra {
namespace {

class VisualTest : public WindowTest {
 protected:
  QColor Shown(const char* swatch) { return Find<Swatch>(swatch).Shown(); }
  QString Label(const char* name) { return Find<QLabel>(name).text(); }
  QString Tag() { return Find<Drawing>("Picture1").property("tag").toString(); }
  bool Drawn() { return Find<Drawing>("Picture1").isVisible(); }
};

TEST_F(VisualTest, BarsMixTheColour) {
  EXPECT_EQ(Label("lblRedDegree").toInt(), Find<QScrollBar>("hsrRed").value());
  Find<QScrollBar>("hsrRed").setValue(7);
  Find<QScrollBar>("hsrBlue").setValue(9);
  Find<QScrollBar>("hsrGreen").setValue(200);
  EXPECT_EQ(Shown("picColorToUse"), QColor(7, 200, 9));
  EXPECT_EQ(Shown("PicRGB0"), QColor(7, 0, 0));
  EXPECT_EQ(Shown("PicRGB1"), QColor(0, 200, 0));
  EXPECT_EQ(Shown("PicRGB2"), QColor(0, 0, 9));
  EXPECT_EQ(Label("lblRedDegree"), "7");
  EXPECT_EQ(Label("lblGreenDegree"), "200");
}

TEST_F(VisualTest, TheLabelsAreWhatTheFillReads) {
  Type("Text1", "3");
  Click("Command3");
  Click("SolveAuto");
  for (const char* label : {"lblRedDegree", "lblGreenDegree", "lblBlueDegree"}) {
    Find<QLabel>(label).setText("0");
  }
  Click("Command3");
  for (int r = 1; r <= 3; ++r) {
    for (int c = 1; c <= 3; ++c) {
      const int x = qRound(256 / 9.0 * std::stod(TheGrid().Text(r, c)));
      EXPECT_EQ(TheGrid().Background(r, c).Red, std::min(x, 255));
    }
  }
  Click("SolveAuto");
  EXPECT_EQ(TheGrid().Background(1, 1), ColorTable[kCellBackground]) << "a new board starts afresh";
}

TEST_F(VisualTest, DrawingsCoverTheBoardUntilSomethingShowsIt) {
  Click("Command1");
  EXPECT_FALSE(Drawn()) << "nothing to draw";
  Click("Option4");
  Type("Text1", "6");
  Type("Text4", "120");
  const std::function<void()> leave[] = {
      [this] { Click("Command4"); },    [this] { Click("SolveAuto"); },
      [this] { Click("SolveManual"); }, [this] { Click("Command3"); },
      [this] { Click("DoCor1"); },      [this] { Find<QAction>("rot90x").trigger(); }};
  for (const auto& taken : leave) {
    Click("SolveAuto");
    for (const auto& [button, tag] : {std::pair{"Command1", "C"}, {"Command2", "V"}}) {
      Click(button);
      EXPECT_TRUE(Drawn());
      EXPECT_EQ(Tag(), tag);
      EXPECT_TRUE(window_.TheBoard().OverlayShown());
      EXPECT_FALSE(TheGrid().Visible());
      EXPECT_FALSE(window_.View().isVisible());
    }
    taken();
    EXPECT_FALSE(Drawn());
    EXPECT_EQ(Tag(), "");
    EXPECT_TRUE(TheGrid().Visible());
    EXPECT_TRUE(window_.View().isVisible());
  }
  Click("Command2");
  Type("Text1", "51");
  Click("SolveAuto");
  dialogs_.Take();
  EXPECT_FALSE(Drawn()) << "Auto takes the drawing away even when it refuses";
}

TEST_F(VisualTest, TheLargestCircleFillsItsCellAndAreasAreInProportion) {
  Type("Text1", "3");
  Click("SolveAuto");
  Find<QScrollBar>("hsrRed").setValue(255);
  Find<QScrollBar>("hsrGreen").setValue(0);
  Find<QScrollBar>("hsrBlue").setValue(0);
  Click("Command1");
  auto& drawing = Find<Drawing>("Picture1");
  drawing.resize(316, 316);  // three cells of 100 pixels
  const QImage image = drawing.grab().toImage();
  for (int r = 1; r <= 3; ++r) {
    for (int c = 1; c <= 3; ++c) {
      const double radius = 49.5 * std::sqrt(std::stod(TheGrid().Text(r, c)) / 9);
      const int x = 8 + 100 * c - 50, y = 8 + 100 * r - 50;
      const QColor inside = image.pixelColor(x + static_cast<int>(radius) - 3, y);
      EXPECT_EQ(inside.red(), 255);
      EXPECT_EQ(inside, image.pixelColor(x, y));
      if (radius < 45) {
        EXPECT_EQ(image.pixelColor(x + static_cast<int>(radius) + 3, y), QColor(104, 108, 114));
      }
    }
  }
}

}  // namespace
}  // namespace numorra
