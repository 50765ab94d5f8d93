#include "print/sheet.h"

#include <gtest/gtest.h>

#include "support/boards.h"

namespace numorra {
namespace {

std::string Indented(const std::vector<std::string>& lines, std::size_t indent) {
  std::string text;
  for (const auto& line : lines)
    text += std::string(indent, ' ') + line + "\r\n";
  return text;
}

TEST(Sheets, DrawTheSquareAsText) {
  Board board;
  ShowRows(board, "8 1 6 / 3 5 7 / 4 9 2");
  const std::string caption = "ALL NUMBERS IN A COLUMN, ROW AND ACROSS TWO DIAGONALS ADD TO 15";
  const std::string rule = "|---|---|---|  ", edge = "+---+---+---+  ";
  EXPECT_EQ(PreviewSheet(board.grid, 15),
            Indented({caption, rule, "|  8|  1|  6|  ", rule, "|  3|  5|  7|  ", rule,
                      "|  4|  9|  2|  ", rule},
                     1));
  EXPECT_EQ(SolutionSheet(board.grid, 15),
            Indented({caption, edge, "|  8|  1|  6|  ", rule, "|  3|  5|  7|  ", rule,
                      "|  4|  9|  2|  ", edge},
                     58));
}

TEST(Sheets, ThePuzzleKeepsFourCorners) {
  Board board;
  ShowRows(board, "1 2 3 4 / 5 6 7 8 / 9 10 11 12 / 13 14 15 16");
  const std::string caption =
      "ALL NUMBERS IN A COLUMN, ROW AND ACROSS TWO DIAGONALS MUST ADD TO-34";
  const std::string rule = "|---|---|---|---|  ", edge = "+---+---+---+---+  ";
  const std::string blank = "|   |   |   |   |  ";
  EXPECT_EQ(PuzzleSheet(board.grid, -34),
            Indented({caption, edge, "|  1|   |   |  4|  ", rule, blank, rule, blank, rule,
                      "| 13|   |   | 16|  ", edge},
                     56));
}

TEST(Sheets, LongNumbersRunIntoTheNextCell) {
  Board board;
  ShowRows(board, "1234 1 12345678901234567890 / 3 5 7 / 4 9 2");
  const std::string sheet = PreviewSheet(board.grid, 0.5);
  EXPECT_NE(sheet.find(" |1234  1|123456\r\n"), std::string::npos) << sheet;
  EXPECT_NE(sheet.find("ADD TO 0.5\r\n"), std::string::npos);
}

}  // namespace
}  // namespace numorra
