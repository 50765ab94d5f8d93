#pragma once

#include <iosfwd>

#include "app/board/cell_table.h"
#include "app/board/rules.h"
#include "cli/arguments.h"

namespace numorra {

/// Writes the order x order block of `square`, whose lines add up to `total`: right-aligned columns
/// with the total below, rows of comma-separated numbers alone, or JSON as the window's files have
/// it.
void WriteSquare(std::ostream& out, const CellTable& square, int order, double total, Rules rules,
                 SquareFormat format);

}  // namespace numorra
