#pragma once

#include <string>

namespace numorra {

/// A cell of the value block, its row and column counted from 1.
struct Place {
  int Row = 0;
  int Column = 0;

  bool operator==(const Place&) const = default;
};

/// How the player is told of a cell: "row 1, column 2".
inline std::string NameOf(Place place) {
  return "row " + std::to_string(place.Row) + ", column " + std::to_string(place.Column);
}

}  // namespace numorra
