#pragma once

#include <iosfwd>

#include "cli/arguments.h"
#include "files/stored_square.h"

namespace numorra {

/// Writes a square that has a total: right-aligned columns, a point for a gap, with the total
/// below; rows of comma-separated numbers alone; or JSON as the window's files have it.
void WriteSquare(std::ostream& out, const StoredSquare& square, SquareFormat format);

}  // namespace numorra
