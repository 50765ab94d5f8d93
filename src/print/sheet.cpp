#include "print/sheet.h"

#include <algorithm>

#include "app/board/numbers.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr int kPageWidth = 128;

std::size_t LineWidth(int order) {
  return 4 * static_cast<std::size_t>(order) + 2;
}

/// Writes `text` over `line` from the 0-based `place`, cut at the line's end.
void WriteOver(std::string& line, std::size_t place, const std::string& text) {
  const std::size_t length = std::min(text.size(), line.size() - std::min(place, line.size()));
  line.replace(place, length, text, 0, length);
}

std::string Rule(int order, char joint) {
  std::string line(LineWidth(order), ' ');
  for (int column = 0; column < order; ++column) {
    WriteOver(line, 4 * static_cast<std::size_t>(column), std::string("---") + joint);
  }
  return joint + line;
}

std::string Places(const std::string& text) {
  return text.size() < kSheetPlaces ? std::string(kSheetPlaces - text.size(), ' ') + text : text;
}

template <class TextAt>
std::string RowLine(int order, TextAt textAt) {
  std::string line = "|" + std::string(LineWidth(order), ' ');
  for (int column = 1; column <= order; ++column) {
    WriteOver(line, static_cast<std::size_t>(4 * column - 3), Places(textAt(column)) + "|");
  }
  return line;
}

/// Caption, edge, the rows with rules between them, edge.
template <class TextAt>
std::string Sheet(int order, const std::string& caption, std::size_t indent,
                  const std::string& edge, TextAt textAt) {
  std::string sheet;
  const auto add = [&](const std::string& line) {
    sheet += std::string(indent, ' ') + line + "\r\n";
  };
  add(caption);
  add(edge);
  for (int row = 1; row <= order; ++row) {
    add(RowLine(order, [&](int column) { return textAt(row, column); }));
    add(row < order ? Rule(order, '|') : edge);
  }
  return sheet;
}

/// The number, with a leading blank instead of a sign if it is not negative.
std::string WithSign(double number) {
  return (number < 0 ? "" : " ") + Written(number);
}

std::string FilledCaption(double total) {
  // Translators: a blank or a minus sign comes with the number.
  return Say("ALL NUMBERS IN A COLUMN, ROW AND ACROSS TWO DIAGONALS ADD TO%1", WithSign(total));
}

int OrderOf(const Grid& grid) {
  return grid.Rows() - 2;
}

std::size_t CentringIndent(int order) {
  return static_cast<std::size_t>(std::max<int>(0, ToInt16((kPageWidth - 4 * order) / 2.0)));
}

}  // namespace

std::string PreviewSheet(const Grid& grid, double total) {
  const int order = OrderOf(grid);
  return Sheet(order, FilledCaption(total), 1, Rule(order, '|'),
               [&](int row, int column) { return grid.Text(row, column); });
}

std::string SolutionSheet(const Grid& grid, double total) {
  const int order = OrderOf(grid);
  return Sheet(order, FilledCaption(total), CentringIndent(order), Rule(order, '+'),
               [&](int row, int column) { return grid.Text(row, column); });
}

std::string PuzzleSheet(const Grid& grid, double total) {
  const int order = OrderOf(grid);
  const auto atEnd = [order](int line) { return line == 1 || line == order; };
  const std::string caption =
      // Translators: a blank or a minus sign comes with the number.
      Say("ALL NUMBERS IN A COLUMN, ROW AND ACROSS TWO DIAGONALS MUST ADD TO%1", WithSign(total));
  return Sheet(order, caption, CentringIndent(order), Rule(order, '+'), [&](int row, int column) {
    return atEnd(row) && atEnd(column) ? grid.Text(row, column) : std::string();
  });
}

}  // namespace numorra
