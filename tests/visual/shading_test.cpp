#include "visual/shading.h"

#include <gtest/gtest.h>

#include "support/boards.h"
#include "visual/value_path.h"

namespace numorra {
namespace {

TEST(FillColours, ShadesInProportionToTheValues) {
  struct Case {
    const char* rows;
    Colour picked;
    int row, column;
    Colour shaded;
  };
  const char* square = "8 1 6 / 3 5 7 / 4 9 2";
  const Case cases[] = {
      {square, Rgb(0, 0, 0), 3, 2, Rgb(255, 255, 255)},
      {square, Rgb(0, 0, 0), 1, 2, Rgb(28, 28, 28)},
      {square, Rgb(255, 0, 0), 1, 2, Rgb(255, 28, 28)},
      {square, Rgb(255, 0, 0), 3, 2, Rgb(255, 255, 255)},
      {"0 4 0 / 0 2 0 / 0 8 1", Rgb(10, 20, 30), 1, 1, Rgb(10, 20, 30)},
      {"0 4 0 / 0 2 0 / 0 8 1", Rgb(10, 20, 30), 2, 2, Rgb(74, 84, 94)},
      {"-5 1 1 / 1 -5 1 / 1 1 10", Rgb(10, 20, 30), 1, 1, ColorTable[kCellBackground]},
      {"-5 -9 -9 / -9 -5 -9 / -9 -9 -5", Rgb(0, 0, 0), 1, 1, Rgb(255, 255, 255)},
      {"8 1 6 / 3 5 7 / 4 5000000000 2", Rgb(0, 0, 0), 1, 1, Rgb(255, 255, 255)},
      {"0 -1 -1 / -1 -1 -1 / -1 -1 -1", Rgb(9, 8, 7), 2, 2, Rgb(9, 8, 7)},
      {"1 1 1 / 1 0 1 / 1 1 -1", Rgb(9, 8, 7), 1, 1, ColorTable[kCellBackground]}};
  for (const Case& c : cases) {
    Board board;
    FillColours(board, c.picked);
    ShowRows(board, c.rows);
    FillColours(board, c.picked);
    EXPECT_EQ(board.grid.Background(c.row, c.column), c.shaded) << c.rows;
    EXPECT_EQ(board.grid.Background(0, 1), kWindowBackground) << "totals are left alone";
    EXPECT_FALSE(board.grid.RedrawLocked());
  }
}

TEST(ReadableText, HasContrastOnEveryColour) {
  EXPECT_NEAR(Contrast(Rgb(0, 0, 0), Rgb(255, 255, 255)), 21, 1e-9);
  EXPECT_NEAR(Contrast(Rgb(255, 255, 255), Rgb(119, 119, 119)), 4.478, 0.001);
  for (int code = 0; code < 1 << 12; ++code) {
    const Colour colour = Rgb(code / 256 * 17, code / 16 % 16 * 17, code % 16 * 17);
    ASSERT_GE(Contrast(colour, ReadableOn(colour)), 4.5) << code;
  }
}

TEST(ValuePaths, RiseWithEqualValuesInReadingOrder) {
  Board board;
  ShowRows(board, "2 9 2 / 1 5 7 / 2 -1 9");
  std::string path;
  for (const auto& cell : ValuePath(board)) {
    path += std::to_string(cell.Row) + std::to_string(cell.Column) + " ";
  }
  EXPECT_EQ(path, "32 21 11 13 31 22 23 12 33 ");
}

}  // namespace
}  // namespace numorra
