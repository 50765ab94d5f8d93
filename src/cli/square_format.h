#pragma once

#include <iosfwd>
#include <string>

#include "cli/arguments.h"
#include "files/stored_square.h"

namespace numorra {

/// Writes a square that has a total: right-aligned columns, a point for a gap, with the total
/// below; rows of comma-separated numbers alone; or JSON as the window's files have it. A remark
/// stands behind the total.
void WriteSquare(std::ostream& out, const StoredSquare& square, SquareFormat format,
                 const std::string& remark = {});

}  // namespace numorra
