#include <gtest/gtest.h>
#include <set>

#include <QClipboard>
#include <QScrollBar>

#include "support/window_fixture.h"
#include "toolkit/colours.h"
#include "visual/shading.h"

namespace numorra {
namespace {

/// Checks what is painted, at a few pixels of every visible cell, with any font.
class PaintingTest : public WindowTest {
 protected:
  /// The cell's ground: beside its lower left corner, where neither text nor notch reaches.
  QColor Ground(int row, int column) {
    const QRect cell = window_.View().CellRect(row, column);
    return image_.pixelColor(cell.left() + 3, cell.bottom() - 4);
  }

  /// Whether something is written in the middle of the cell, in roughly its text colour.
  bool HasInk(int row, int column, const QColor& ink) {
    const QRect cell = window_.View().CellRect(row, column).adjusted(4, 6, -4, -6);
    const QColor ground = Ground(row, column);
    const bool darker = ink.lightness() < ground.lightness();
    for (int y = cell.top(); y <= cell.bottom(); ++y) {
      for (int x = cell.left(); x <= cell.right(); ++x) {
        const int contrast = image_.pixelColor(x, y).lightness() - ground.lightness();
        if (darker ? contrast < -60 : contrast > 60) return true;
      }
    }
    return false;
  }

  bool InSight(int row, int column) {
    const QRect cell = window_.View().CellRect(row, column);
    const QRect shown = window_.View().viewport()->rect();
    const int fixed = window_.View().CellRect(1, 1).width();
    return shown.contains(cell) && (row == 0 || cell.top() >= fixed) &&
           (column == 0 || cell.left() >= fixed);
  }

  /// Checks every visible cell and returns their number.
  int LookOver() {
    QCoreApplication::processEvents();
    image_ = window_.View().viewport()->grab().toImage();
    const Grid& grid = TheGrid();
    const int last = grid.Rows() - 1;
    const QPalette& theme = window_.View().palette();
    int seen = 0;
    for (int row = 0; row <= last; ++row) {
      for (int column = 0; column <= last; ++column) {
        if (!InSight(row, column)) continue;
        ++seen;
        const std::string where = std::to_string(row) + ", " + std::to_string(column);
        const Colour own = grid.Background(row, column);
        const bool total = row == 0 || column == 0 || row == last || column == last;
        const bool line = row == grid.CurrentRow() || column == grid.CurrentColumn();
        const bool current = row == grid.CurrentRow() && column == grid.CurrentColumn();
        QColor expected = own.SeeThrough ? theme.color(QPalette::Window) : ToQColor(own);
        if (!total && line && !current && !grid.Shaded(row, column)) expected = Tinted(expected);
        const QColor ground = Ground(row, column);
        EXPECT_TRUE(Near(ground, expected)) << where << ": " << ground.name().toStdString();
        const QColor ink = own.SeeThrough ? theme.color(QPalette::WindowText)
                                          : ToQColor(grid.Foreground(row, column));
        EXPECT_EQ(HasInk(row, column, ink), !grid.Text(row, column).empty()) << where;
        if (total && !own.SeeThrough) {
          const QRect cell = window_.View().CellRect(row, column);
          const bool notch = image_.pixelColor(cell.right() - 1, cell.top()).lightness() > 200;
          EXPECT_EQ(notch, grid.VerdictOf(row, column) == Verdict::Wrong) << where;
        }
      }
    }
    return seen;
  }

  QColor Tinted(const QColor& colour) {
    const QColor tint = window_.View().palette().color(QPalette::Highlight);
    const auto mix = [](int ground, int over) { return (ground * 219 + over * 36) / 255; };
    return {mix(colour.red(), tint.red()), mix(colour.green(), tint.green()),
            mix(colour.blue(), tint.blue())};
  }

  static bool Near(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) < 4 && std::abs(a.green() - b.green()) < 4 &&
           std::abs(a.blue() - b.blue()) < 4;
  }

  void Darken() {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(40, 40, 44));
    dark.setColor(QPalette::WindowText, QColor(235, 235, 235));
    window_.setPalette(dark);
  }

  QImage image_;
};

TEST_F(PaintingTest, EveryCellHasItsColourAndItsInk) {
  const std::pair<const char*, const char*> boards[] = {{"3", "18"}, {"11", "671"}, {"50", "5000"}};
  for (const bool dark : {false, true}) {
    if (dark) Darken();
    for (const auto& [order, sum] : boards) {
      const int lines = std::stoi(order) + 2;
      Make("SolveAuto", order);
      EXPECT_GE(LookOver(), std::min(lines * lines, 300)) << "in the window's colours";
      Make("SolveManual", order, sum);
      dialogs_.Take();
      ClickCell(2, 2);
      Choose("correctrowx", 2, 2);
      LookOver();
      Click("Command3");
      LookOver();
    }
  }
}

TEST_F(PaintingTest, AScrolledBoardShowsItsOtherCells) {
  Make("SolveManual", "50", "5000");
  dialogs_.Take();
  ClickCell(40, 45);
  QTest::keyClick(&window_.View(), Qt::Key_7);
  EXPECT_GT(window_.View().verticalScrollBar()->value(), 0);
  EXPECT_GT(LookOver(), 200);
  EXPECT_FALSE(InSight(1, 1));
}

/// However little was repainted, nothing old remains.
TEST_F(PaintingTest, EveryKeyLeavesAWholePicture) {
  for (const auto& [order, sum] : {std::pair{"3", "18"}, {"11", "671"}, {"50", "5000"}}) {
    Make("SolveManual", order, sum);
    dialogs_.Take();
    ClickCell(2, 2);
    const auto keys = {Qt::Key_7,     Qt::Key_Right, Qt::Key_Down,   Qt::Key_9,         Qt::Key_0,
                       Qt::Key_Up,    Qt::Key_Left,  Qt::Key_Left,   Qt::Key_Backspace, Qt::Key_End,
                       Qt::Key_Space, Qt::Key_Home,  Qt::Key_Return, Qt::Key_PageDown,  Qt::Key_4};
    for (const Qt::Key key : keys) {
      QTest::keyClick(&window_.View(), key);
      EXPECT_TRUE(IsSeenWhole(*window_.View().viewport())) << order << ", key " << key;
      dialogs_.Take();
    }
    QTest::keyClick(&window_.View(), Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_TRUE(IsSeenWhole(*window_.View().viewport())) << "a marked row";
    QTest::keyClick(&window_.View(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(IsSeenWhole(*window_.View().viewport())) << "scrolled";
  }
}

/// A value cell shaded in the colour of wrong totals is not a wrong total.
TEST_F(PaintingTest, ShadesAreNoVerdicts) {
  Make("SolveManual", "3", "15");
  Find<QScrollBar>("hsrRed").setValue(128);
  Find<QScrollBar>("hsrGreen").setValue(0);
  Find<QScrollBar>("hsrBlue").setValue(0);
  QTest::keyClick(&window_.View(), Qt::Key_0);
  QTest::keyClick(&window_.View(), Qt::Key_Right);
  Click("Command3");
  EXPECT_EQ(TheGrid().Background(1, 1), Rgb(128, 0, 0));
  LookOver();
  const QRect cell = window_.View().CellRect(1, 1);
  EXPECT_EQ(image_.pixelColor(cell.right() - 2, cell.top() + 1), QColor(128, 0, 0)) << "no notch";
}

TEST_F(PaintingTest, TheCurrentLinesTotalsAreFramed) {
  Make("SolveManual", "5", "70");
  ClickCell(2, 4);
  LookOver();
  for (int line = 1; line <= 5; ++line) {
    const QRect row = window_.View().CellRect(line, 0), column = window_.View().CellRect(0, line);
    const auto framed = [&](const QRect& cell) {
      return image_.pixelColor(cell.left() + 1, cell.center().y()).lightness() > 200;
    };
    EXPECT_EQ(framed(row), line == 2) << line;
    EXPECT_EQ(framed(column), line == 4) << line;
  }
}

/// The value block has lines all around and between its cells, and no other line until the board is
/// checked; wrong totals have a notch of a quarter of their side.
TEST_F(PaintingTest, LinesAndNotchesAreWhereTheyBelong) {
  Make("SolveAuto", "3");
  window_.View().SetZoom(2, {});
  const QColor line = window_.View().palette().color(QPalette::Mid);
  const auto grab = [&] { image_ = window_.View().viewport()->grab().toImage(); };
  grab();
  for (int row = 0; row < 5; ++row) {
    for (int column = 0; column < 5; ++column) {
      const QRect cell = window_.View().CellRect(row, column);
      const bool level = row < 4 && column >= 1 && column < 4;
      const bool upright = column < 4 && row >= 1 && row < 4;
      if (row <= 1 && column <= 1) continue;  // the current cell and its ring
      const QColor below = image_.pixelColor(cell.center().x(), cell.bottom());
      const QColor beside = image_.pixelColor(cell.right(), cell.center().y());
      EXPECT_EQ(below.rgb() == line.rgb(), level) << row << ", " << column;
      EXPECT_EQ(beside.rgb() == line.rgb(), upright) << row << ", " << column;
    }
  }
  Make("SolveManual", "3", "18");
  grab();
  const QRect total = window_.View().CellRect(2, 0);
  const int side = total.width() / 4;
  const QColor notch = ToQColor(ColorTable[kTotalText]);
  for (const int along : {2, side / 2, side - 2})
    EXPECT_EQ(image_.pixelColor(total.right() - 1, total.top() + along), notch) << along;
  for (const int along : {2, side / 2, side - 2})
    EXPECT_EQ(image_.pixelColor(total.right() - along, total.top() + 1), notch) << along;
  EXPECT_NE(image_.pixelColor(total.right() - 1, total.top() + side + 3), notch);
  EXPECT_NE(image_.pixelColor(total.right() - side - 3, total.top() + 1), notch);
  EXPECT_NE(image_.pixelColor(total.right() - side + 4, total.top() + side - 4), notch);
}

TEST_F(PaintingTest, NumbersStandInTheMiddleOfTheirCells) {
  const auto expectInTheMiddle = [this](int row, int column) {
    image_ = window_.View().viewport()->grab().toImage();
    const QRect cell = window_.View().CellRect(row, column).adjusted(0, 0, -1, -1);
    const QColor ground = Ground(row, column);
    QRect ink;
    for (int y = cell.top(); y < cell.bottom(); ++y) {
      for (int x = cell.left(); x < cell.right(); ++x) {
        const int contrast = image_.pixelColor(x, y).lightness() - ground.lightness();
        if (std::abs(contrast) > 100) ink |= QRect(x, y, 1, 1);
      }
    }
    EXPECT_NEAR(ink.left() - cell.left(), cell.right() - ink.right(), 3) << TheGrid().Rows();
    EXPECT_NEAR(ink.top() - cell.top(), cell.bottom() - ink.bottom(), 4) << TheGrid().Rows();
    EXPECT_GT(ink.height(), cell.height() / 5);
  };
  QGuiApplication::clipboard()->setText("NP12S3W04");
  Find<QAction>("Pastex").trigger();
  EXPECT_TRUE(TheGrid().Given(2, 2));
  expectInTheMiddle(2, 2);
  for (const char* order : {"3", "11", "32"}) {
    Make("SolveAuto", order);
    expectInTheMiddle(1, 2);
    expectInTheMiddle(1, 3);
  }
}

/// From outside to the middle, the same on all four sides and at every zoom: a ring of the
/// highlight, a white line, the ground; in totals a frame inside the ground.
TEST_F(PaintingTest, RingAndFramesAreEvenAtEveryZoom) {
  Make("SolveManual", "3", "15");
  for (const auto& [at, zoom] : {std::pair(2, 1.0), {2, 2.0}, {1, 3.0}, {1, 4.0}}) {
    ClickCell(at, at);
    window_.View().SetZoom(zoom, {});
    image_ = window_.View().viewport()->grab().toImage();
    const QRect cell = window_.View().CellRect(at, at);
    const int quarter = cell.height() / 4;
    const auto look = [&](const QRect& from, const QColor& ink) {
      std::set<std::string> seen;
      const std::pair<QPoint, QPoint> ways[] = {{{from.left(), from.top() + quarter}, {1, 0}},
                                                {{from.right(), from.bottom() - quarter}, {-1, 0}},
                                                {{from.left() + quarter, from.top()}, {0, 1}},
                                                {{from.left() + quarter, from.bottom()}, {0, -1}}};
      for (const auto& [start, step] : ways) {
        std::string way;
        for (int i = 0; i < quarter; ++i) {
          const QColor pixel = image_.pixelColor(start + step * i);
          way += pixel == ink ? 'i' : pixel == Qt::white ? 'w' : '.';
        }
        seen.insert(way.substr(0, way.find_last_not_of('.') + 1));
      }
      return seen;
    };
    const auto ring = static_cast<std::size_t>(std::max(2, cell.width() / 16));
    EXPECT_EQ(
        look(cell.adjusted(-1, -1, 0, 0), window_.View().palette().color(QPalette::Highlight)),
        std::set{std::string(ring, 'i') + "w"})
        << zoom;
    const auto frame = static_cast<std::size_t>(std::max(1, cell.width() / 24));
    for (const QRect& total : {window_.View().CellRect(at, 0), window_.View().CellRect(0, at)}) {
      EXPECT_EQ(look(total.adjusted(0, 0, -1, -1), ToQColor(TheGrid().Foreground(at, 0))),
                std::set{std::string(".").append(frame, 'i')})
          << zoom;
    }
  }
}

}  // namespace
}  // namespace numorra
