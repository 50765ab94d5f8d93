#pragma once

#include <optional>
#include <string>

#include "app/board/grid.h"

namespace numorra {

/// Warnings about a sheet, each one sentence for the player; empty if there is none.
struct SheetDoubts {
  std::string Total;               ///< the caption's total is not that of the lines
  std::optional<double> TheLines;  ///< the total of all lines, if they agree
  std::string Width;               ///< numbers overlap their neighbours
};

/// Checks a sheet with `total` in its caption.
SheetDoubts DoubtsOf(const Grid& grid, double total);

}  // namespace numorra
