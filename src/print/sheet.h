#pragma once

#include <cstddef>
#include <string>

#include "app/board/grid.h"

namespace numorra {

/// The largest order that fits on a printed line.
inline constexpr int kMaxPrintedOrder = 30;

/// The width of a number on a sheet, in characters.
inline constexpr std::size_t kSheetPlaces = 3;

/// The board as monospaced text; every line ends with CR LF. `total` is the total of the lines.
///
///     ALL NUMBERS IN A COLUMN, ROW AND ACROSS TWO DIAGONALS ADD TO 15
///     |---|---|---|
///     |  8|  1|  6|
///     |---|---|---|
///
/// Numbers are right-aligned in three places; longer ones overlap the next cell.

/// The filled square for the screen, indented by one blank.
std::string PreviewSheet(const Grid& grid, double total);

/// The filled square for a page with 128 characters per line, centred.
std::string SolutionSheet(const Grid& grid, double total);

/// The same with only the four corner numbers, for solving.
std::string PuzzleSheet(const Grid& grid, double total);

}  // namespace numorra
