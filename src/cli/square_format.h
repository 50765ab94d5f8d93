#pragma once

#include <iosfwd>

#include "app/board/cell_table.h"
#include "cli/arguments.h"

namespace numorra {

/// Writes the order x order block of `square`, whose lines add up to `total`: right-aligned columns
/// with the total below, rows of comma-separated numbers alone, or one JSON object with the members
/// "order", "total" and "rows".
void WriteSquare(std::ostream& out, const CellTable& square, int order, double total,
                 SquareFormat format);

}  // namespace numorra
