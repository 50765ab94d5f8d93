#pragma once

#include <optional>
#include <string>

#include "app/board/grid.h"

namespace numorra {

/// What may be wrong with a sheet, each in one sentence for the player; empty where nothing is.
struct SheetDoubts {
  std::string Total;               ///< the caption's total is not that of the lines
  std::optional<double> TheLines;  ///< what all lines add up to, where they agree
  std::string Width;               ///< numbers run into their neighbours
};

/// Looks a sheet over whose caption says `total`.
SheetDoubts DoubtsOf(const Grid& grid, double total);

}  // namespace numorra
