#include <map>
#include <set>

#include "support/window_fixture.h"

namespace numorra {
namespace {

using DigitsTest = WindowTest;

/// Cells of both boards have the same colour exactly if they have the same digit.
TEST_F(DigitsTest, AreTwoBoardsOfColours) {
  auto& drawing = Find<Drawing>("Picture1");
  Find<QAction>("Digitsx").trigger();
  EXPECT_FALSE(drawing.isVisible()) << "nothing to draw";
  for (const int order : {3, 8, 50}) {
    Make("SolveAuto", std::to_string(order));
    Find<QAction>("Digitsx").trigger();
    EXPECT_TRUE(drawing.isVisible());
    EXPECT_EQ(drawing.property("tag").toString(), "D");
    drawing.resize(1016, 1016);
    const QImage image = drawing.grab().toImage();
    std::map<int, QRgb> colours;
    const double side = 470.0 / order;
    ForEachCell(order, [&](int r, int c) {
      const int rank = std::stoi(TheGrid().Text(r, c)) - 1;
      for (const auto& [left, digit] : {std::pair(8, rank / order), {538, rank % order}}) {
        const QPointF corner(left + side * (c - 0.9), 273 + side * (r - 0.9));
        const QRgb colour = image.pixel(corner.toPoint());
        ASSERT_EQ(colours.try_emplace(digit, colour).first->second, colour) << order;
      }
    });
    std::set<QRgb> different;
    for (const auto& [digit, colour] : colours)
      different.insert(colour);
    EXPECT_EQ(different.size(), static_cast<std::size_t>(order));
  }
  const auto shades = [&] {
    const QImage image = drawing.grab().toImage();
    std::set<QRgb> found;
    for (int x = 0; x < image.width(); ++x)
      found.insert(image.pixel(x, image.height() / 3));
    return found.size();
  };
  EXPECT_GT(shades(), 10U);
  Make("SolveAuto", "8", "400");
  Find<QAction>("Digitsx").trigger();
  EXPECT_TRUE(drawing.isVisible());
  EXPECT_EQ(shades(), 1U) << "no digits, but a sentence in the middle";
  EXPECT_EQ(kDigits.WhyNone(window_.TheBoard()),
            "Only a board of the numbers 1 to 64, each once, has digits to draw.");
}

}  // namespace
}  // namespace numorra
