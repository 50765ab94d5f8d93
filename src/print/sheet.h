#pragma once

#include <cstddef>
#include <string>

#include "app/board/grid.h"

namespace numorra {

/// The largest board that fits on a printed line.
inline constexpr int kMaxPrintedOrder = 30;

/// The places that a number has on a sheet.
inline constexpr std::size_t kSheetPlaces = 3;

/// The board as monospaced text, every line ended by CR LF. `total` is what the lines add up to.
///
///     ALL NUMBERS IN A COLUMN, ROW AND ACROSS TWO DIAGONALS ADD TO 15
///     |---|---|---|
///     |  8|  1|  6|
///     |---|---|---|
///
/// Numbers stand right-aligned in three places; longer ones run into the next cell.

/// The filled square for reading, indented by one blank.
std::string PreviewSheet(const Grid& grid, double total);

/// The filled square for a page of 128 characters a line, centred.
std::string SolutionSheet(const Grid& grid, double total);

/// The same with only the four corner numbers filled in, for solving.
std::string PuzzleSheet(const Grid& grid, double total);

}  // namespace numorra
