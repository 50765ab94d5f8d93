#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include <QClipboard>

#include "support/window_fixture.h"
#include "visual/shading.h"
#include "visual/value_path.h"

namespace numorra {
namespace {

class VisualTest : public WindowTest {
 protected:
  QString Label(const char* name) { return Find<QLabel>(name).text(); }
  QString Tag() { return Find<Drawing>("Picture1").property("tag").toString(); }
  bool Drawn() { return Find<Drawing>("Picture1").isVisible(); }
};

TEST_F(VisualTest, BarsMixTheColourThatTheFillReadsFromTheLabels) {
  EXPECT_EQ(Label("lblRedDegree").toInt(), Find<QScrollBar>("hsrRed").value());
  EXPECT_EQ(Label("lblRedDegree") + Label("lblGreenDegree") + Label("lblBlueDegree"), "2090160");
  const char* const rows[][3] = {{"PicRGB0", "hsrRed", "lblRedDegree"},
                                 {"PicRGB1", "hsrGreen", "lblGreenDegree"},
                                 {"PicRGB2", "hsrBlue", "lblBlueDegree"}};
  int above = 0;
  for (const auto& row : rows) {
    const QRect swatch = Find<QWidget>(row[0]).geometry();
    const QRect bar = Find<QWidget>(row[1]).geometry();
    const QRect degree = Find<QWidget>(row[2]).geometry();
    EXPECT_TRUE(swatch.right() < bar.left() && bar.right() < degree.left()) << row[1];
    EXPECT_GT(bar.width(), 2 * degree.width());
    EXPECT_NEAR(swatch.center().y(), bar.center().y(), 1);
    EXPECT_NEAR(degree.center().y(), bar.center().y(), 1);
    EXPECT_GT(bar.top(), above);
    above = bar.bottom();
  }
  EXPECT_GT(Find<QWidget>("picColorToUse").geometry().top(), above);
  Find<QScrollBar>("hsrRed").setValue(7);
  Find<QScrollBar>("hsrBlue").setValue(9);
  Find<QScrollBar>("hsrGreen").setValue(200);
  const std::pair<const char*, QColor> swatches[] = {{"picColorToUse", QColor(7, 200, 9)},
                                                     {"PicRGB0", QColor(7, 0, 0)},
                                                     {"PicRGB1", QColor(0, 200, 0)},
                                                     {"PicRGB2", QColor(0, 0, 9)}};
  for (const auto& [swatch, colour] : swatches)
    EXPECT_EQ(Find<Swatch>(swatch).Shown(), colour) << swatch;
  EXPECT_EQ(Label("lblRedDegree") + Label("lblGreenDegree"), "7200");
  Click("Command3");
  Make("SolveAuto", "3");
  Find<QLabel>("lblRedDegree").setText("0");
  Click("Command3");
  ForEachCell(3, [this](int r, int c) {
    const int shade = qRound(256 / 9.0 * std::stod(TheGrid().Text(r, c)));
    EXPECT_EQ(TheGrid().Background(r, c).Red, std::min(shade, 255));
  });
  Click("SolveAuto");
  EXPECT_EQ(TheGrid().Background(1, 1), ColorTable[kCellBackground]) << "a new board starts afresh";
}

TEST_F(VisualTest, DrawingsCoverTheBoardUntilSomethingShowsIt) {
  Click("Command1");
  EXPECT_FALSE(Drawn()) << "nothing to draw";
  Make("SolveAuto", "6", "120");
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
      EXPECT_FALSE(TheGrid().Visible() || window_.View().isVisible());
    }
    taken();
    EXPECT_FALSE(Drawn());
    EXPECT_EQ(Tag(), "");
    EXPECT_TRUE(TheGrid().Visible() && window_.View().isVisible());
  }
  Click("Command2");
  Type("Text1", "51");
  Click("SolveAuto");
  dialogs_.Take();
  EXPECT_FALSE(Drawn()) << "Auto takes the drawing away even when it refuses";
}

TEST_F(VisualTest, DrawingsFollowTheColour) {
  const auto middle = [this] {
    auto& drawing = Find<Drawing>("Picture1");
    return drawing.grab().toImage().pixelColor(drawing.rect().center());
  };
  Make("SolveAuto", "3");
  for (const char* bar : {"hsrRed", "hsrGreen", "hsrBlue"})
    Find<QScrollBar>(bar).setValue(0);
  Click("Command1");
  EXPECT_EQ(middle(), QColor(142, 142, 142)) << "5 of 9";
  Find<QScrollBar>("hsrBlue").setValue(100);
  EXPECT_EQ(middle(), QColor(142, 142, 242)) << "a bar moved under the drawing";
  Find<QLabel>("lblRedDegree").setText("100");
  Click("Command1");
  EXPECT_EQ(middle(), QColor(242, 142, 242)) << "drawn again";
}

/// Areas are in proportion, the largest circle fills its cell, and all are centred.
TEST_F(VisualTest, CirclesAreAsLargeAsTheirNumbers) {
  Make("SolveAuto", "3");
  Click("Command1");
  auto& drawing = Find<Drawing>("Picture1");
  drawing.resize(316, 316);
  const QImage image = drawing.grab().toImage();
  ForEachCell(3, [&](int r, int c) {
    const QRect cell(8 + 100 * (c - 1), 8 + 100 * (r - 1), 100, 100);
    const QColor shade = image.pixelColor(cell.center());
    QRect circle;
    int area = 0;
    for (int y = cell.top(); y <= cell.bottom(); ++y) {
      for (int x = cell.left(); x <= cell.right(); ++x) {
        if (image.pixelColor(x, y) != shade) continue;
        circle |= QRect(x, y, 1, 1);
        ++area;
      }
    }
    const double number = std::stod(TheGrid().Text(r, c));
    EXPECT_NEAR(circle.width(), 99 * std::sqrt(number / 9), 2.5) << number;
    EXPECT_NEAR(circle.height(), circle.width(), 1);
    EXPECT_NEAR(area, std::acos(-1) / 4 * circle.width() * circle.height(), 0.05 * area);
    EXPECT_LE((circle.center() - cell.center()).manhattanLength(), 2);
  });
}

/// Each step of the path runs between the cells of two successive numbers, with an arrow head
/// halfway.
TEST_F(VisualTest, VectorsGoFromNumberToNumber) {
  Type("Text1", "5");
  Click("SolveAuto");
  std::map<int, QPointF> centres;
  ForEachCell(5, [&](int r, int c) {
    centres[std::stoi(TheGrid().Text(r, c))] = QPointF(8 + 60 * c - 30, 8 + 60 * r - 30);
  });
  Click("Command2");
  auto& drawing = Find<Drawing>("Picture1");
  drawing.resize(316, 316);
  const QImage image = drawing.grab().toImage();
  for (int number = 1; number < 25; ++number) {
    const QPointF from = centres[number], to = centres[number + 1];
    const auto expectHue = [&](QPointF at) {
      EXPECT_GT(image.pixelColor(at.toPoint()).hsvSaturation(), 100) << number;
    };
    for (const double share : {0.3, 0.7})
      expectHue(from + (to - from) * share);
    const QPointF ahead = (to - from) / std::hypot(to.x() - from.x(), to.y() - from.y());
    const QPointF barbs = (from + to) / 2 - ahead * 4;
    for (const double aside : {-4.0, 4.0})
      expectHue(barbs + QPointF(-ahead.y(), ahead.x()) * aside);
  }
  EXPECT_EQ(image.pixelColor(centres[1].toPoint()), QColor(Qt::white)) << "the ring at the start";
  EXPECT_EQ(image.pixelColor(centres[25].toPoint()).hsvHue(), 0) << "the red square at the end";
  for (const QPoint side : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
    EXPECT_EQ(image.pixelColor(centres[1].toPoint() + 8 * side), QColor(Qt::white));
    EXPECT_LT(image.pixelColor(centres[1].toPoint() + 12 * side).lightness(), 100);
    EXPECT_EQ(image.pixelColor(centres[25].toPoint() + 9 * side).hsvHue(), 0);
    EXPECT_LT(image.pixelColor(centres[25].toPoint() + 12 * side).lightness(), 100);
    EXPECT_GT(image.pixelColor(centres[25].toPoint() + 17 * side).lightness(), 100);
  }
}

/// A gap is not on the path and has no circle.
TEST_F(VisualTest, GapsAreNotDrawn) {
  QGuiApplication::clipboard()->setText("4 9 2\n3 5 7\n8 . 6");
  Find<QAction>("Pastex").trigger();
  dialogs_.Take();
  std::vector<double> way;
  for (const ValuedCell& cell : ValuePath(window_.TheBoard()))
    way.push_back(cell.Value);
  EXPECT_EQ(way, (std::vector<double>{2, 3, 4, 5, 6, 7, 8, 9}));
  const QRect gap(108, 208, 100, 100);
  auto& drawing = Find<Drawing>("Picture1");
  Find<QAction>("DrawingNumbersx").trigger();
  for (const char* button : {"Command1", "Command2"}) {
    Click(button);
    drawing.resize(316, 316);
    const QImage image = drawing.grab().toImage();
    EXPECT_EQ(image.pixelColor(gap.center() + QPoint(0, 30)),
              image.pixelColor(gap.topLeft() + QPoint(12, 60)));
  }
  Find<QAction>("EmptyBoardx").trigger();
  EXPECT_TRUE(ValuePath(window_.TheBoard()).empty());
  EXPECT_FALSE(drawing.isVisible());
}

/// Every cell of a drawing has more or other ink when its number is shown, and only where the
/// number and its halo are.
TEST_F(VisualTest, NumbersAreWrittenIntoDrawings) {
  Make("SolveAuto", "4");
  auto& drawing = Find<Drawing>("Picture1");
  for (const char* button : {"Command1", "Command2"}) {
    Click(button);
    drawing.resize(416, 416);
    const QImage without = drawing.grab().toImage();
    Find<QAction>("DrawingNumbersx").trigger();
    const QImage with = drawing.grab().toImage();
    Find<QAction>("DrawingNumbersx").trigger();
    EXPECT_EQ(drawing.grab().toImage(), without);
    for (int cell = 0; cell < 16; ++cell) {
      const QRect place(8 + 100 * (cell % 4), 8 + 100 * (cell / 4), 100, 100);
      int changed = 0;
      for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
          changed += with.pixelColor(x, y) != without.pixelColor(x, y) ? 1 : 0;
      }
      EXPECT_GT(changed, 60) << button << cell;
      EXPECT_LT(changed, 1700) << button << cell;
    }
  }
}

/// Contrast is at least 4.5 for texts and 3 for marks, in both themes: the totals, their notch and
/// frame, and every step of the path.
TEST_F(VisualTest, EverythingStandsOut) {
  for (const ColourUse total : {kWrongTotal, kRightTotal})
    EXPECT_GE(Contrast(ColorTable[total], ColorTable[kTotalText]), 4.5);
  EXPECT_GE(Contrast(ColorTable[kCellBackground], ColorTable[kCellText]), 4.5);
  Type("Text1", "7");
  Click("SolveAuto");
  Click("Command2");
  auto& drawing = Find<Drawing>("Picture1");
  drawing.resize(436, 436);
  const auto toColour = [](QColor c) { return Rgb(c.red(), c.green(), c.blue()); };
  for (const QColor& ground : {QColor(Qt::white), QColor(35, 38, 41)}) {
    QPalette theme;
    theme.setColor(QPalette::Base, ground);
    drawing.setPalette(theme);
    const QImage image = drawing.grab().toImage();
    int looked = 0;
    for (int x = 10; x < 426; ++x) {
      for (int y = 10; y < 426; ++y) {
        const QColor pixel = image.pixelColor(x, y);
        // The middle of a stroke, not its antialiased edge.
        if (pixel.hsvSaturation() < 60 || image.pixelColor(x + 1, y) != pixel ||
            image.pixelColor(x, y + 1) != pixel) {
          continue;
        }
        ++looked;
        ASSERT_GE(Contrast(toColour(pixel), toColour(ground)), 2.95) << pixel.name().toStdString();
      }
    }
    EXPECT_GT(looked, 200);
  }
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
  ForEachCell(3, [&](int r, int c) {
    const double radius = 49.5 * std::sqrt(std::stod(TheGrid().Text(r, c)) / 9);
    const int x = 8 + 100 * c - 50, y = 8 + 100 * r - 50, edge = x + static_cast<int>(radius);
    EXPECT_EQ(image.pixelColor(x, y).red(), 255);
    EXPECT_EQ(image.pixelColor(edge - 3, y), image.pixelColor(x, y));
    EXPECT_TRUE(radius > 45 || image.pixelColor(edge + 3, y) == QColor(104, 108, 114));
  });
}

}  // namespace
}  // namespace numorra
