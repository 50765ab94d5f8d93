#pragma once

#include <string>
#include <vector>

#include "app/board/position.h"

namespace numorra {

/// The entries in these cells, the first five of them: "7 in row 2, column 3; 9 in row 1, column
/// 1".
std::string NamesOfEntries(const Position& position, const std::vector<Place>& cells);

}  // namespace numorra
