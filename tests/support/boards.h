#pragma once

#include <algorithm>
#include <iterator>
#include <sstream>
#include <string>

#include "app/board/board.h"
#include "support/slow_checker.h"

namespace numorra {

/// Rows of numbers, separated by blanks or commas, rows by a slash: "8 1 6 / 3 5 7 / 4 9 2".
inline slow::Rows ParseRows(std::string text, char rowEnd = '/') {
  slow::Rows rows;
  std::replace(text.begin(), text.end(), ',', ' ');
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line, rowEnd);) {
    std::istringstream numbers(line);
    rows.emplace_back(std::istream_iterator<double>(numbers), std::istream_iterator<double>());
  }
  return rows;
}

inline slow::Rows RowsOf(const CellTable& cells, int order) {
  slow::Rows rows;
  for (int r = 1; r <= order; ++r) {
    rows.emplace_back();
    for (int c = 1; c <= order; ++c)
      rows.back().push_back(cells(r, c));
  }
  return rows;
}

template <class T>
slow::Rows RowsOf(const Square<T>& square) {
  slow::Rows rows;
  for (int cell = 0; cell < square.Size(); ++cell) {
    if (cell % square.Order() == 0) rows.emplace_back();
    rows.back().push_back(static_cast<double>(square[cell]));
  }
  return rows;
}

inline Square<double> SquareFrom(const slow::Rows& rows) {
  Square<double> square(static_cast<int>(rows.size()));
  auto cell = square.begin();
  for (const auto& row : rows)
    cell = std::copy(row.begin(), row.end(), cell);
  return square;
}

/// The numbers in a table with room for the totals.
inline CellTable TableFrom(const slow::Rows& rows) {
  CellTable table;
  for (std::size_t r = 0; r < rows.size(); ++r) {
    for (std::size_t c = 0; c < rows.size(); ++c)
      table(static_cast<int>(r) + 1, static_cast<int>(c) + 1) = rows[r][c];
  }
  return table;
}

/// The texts in the grid's value block.
inline slow::Rows ShownRows(const Grid& grid) {
  slow::Rows rows;
  for (int r = 1; r < grid.Rows() - 1; ++r) {
    rows.emplace_back();
    for (int c = 1; c < grid.Columns() - 1; ++c)
      rows.back().push_back(std::stod(grid.Text(r, c)));
  }
  return rows;
}

/// A shown board of the given numbers.
inline void ShowRows(Board& board, const std::string& text, double target = 15,
                     std::int16_t baseValue = 5) {
  const slow::Rows rows = ParseRows(text);
  board.GridSize = static_cast<std::int16_t>(rows.size());
  board.TargetTotal = target;
  board.BaseValue = baseValue;
  board.SetupBoard();
  board.BoardValues = TableFrom(rows);
  board.ShowBoard();
}

/// A shown board of the numbers 1 to order x order in reading order.
inline void ShowCounted(Board& board, std::int16_t order) {
  board.GridSize = order;
  board.SetupBoard();
  board.FillBoard(0);
  board.ShowBoard();
}

}  // namespace numorra
