#pragma once

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>

#include "generate/top_row_square.h"

namespace numorra {

/// A line of a list of birthdays.
struct NamedTopRow {
  std::string Name;  ///< may be empty
  TopRow Row;
};

/// The name and the top row of a line such as "Ada 10.12.1815" or "Emmy, 23,3,18,82": the top row
/// is the longest end of it that is one. Nothing if none is.
std::optional<NamedTopRow> NamedTopRowIn(const std::string& line);

}  // namespace numorra
