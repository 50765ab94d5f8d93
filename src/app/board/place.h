#pragma once

#include <concepts>
#include <cstddef>
#include <string>

#include "words/say.h"

namespace numorra {

/// A cell of the value block, its row and column counted from 1.
struct Place {
  int Row = 0;
  int Column = 0;

  bool operator==(const Place&) const = default;
};

/// The place of the cell at `index`, counted from 0 in reading order, on a board of order x order.
Place PlaceAt(std::integral auto index, int order) {
  const int cell = static_cast<int>(index);
  return {cell / order + 1, cell % order + 1};
}

/// The index of the place in reading order, from 0.
inline std::size_t IndexOf(Place place, int order) {
  return static_cast<std::size_t>((place.Row - 1) * order + place.Column - 1);
}

/// The name of a cell in messages: "row 1, column 2".
inline std::string NameOf(Place place) {
  return Say("row %1, column %2", place.Row, place.Column);
}

}  // namespace numorra
