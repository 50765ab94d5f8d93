#pragma once

#include <span>
#include <vector>

#include "app/board/square.h"

namespace numorra {

/// A rearrangement of a square's cells: cell i of the image shows cell map[i] of the square.
using CellMap = std::vector<int>;

/// A condition on a square: the number in one cell is smaller than the number in another.
struct Ascent {
  int Smaller;
  int Larger;
};

/// The eight images of a square, the square itself first.
std::vector<CellMap> EightImages(int order);

/// Those of the maps that leave every given cell (not 0) where it is. If the maps are a group, so
/// are these; and the squares that hold the givens come in sets of so many images, since a number
/// occurs only once.
std::vector<CellMap> MapsThatKeep(const Square<int>& givens, const std::vector<CellMap>& maps);

/// The conditions for a square of distinct numbers to come first among its images under `maps`,
/// compared cell by cell in the order `cells`. One for each map suffices: the first cell that the
/// map moves decides. In reading order, those of the eight images are Frénicle's standard form.
std::vector<Ascent> FirstAmongImages(const std::vector<CellMap>& maps, std::span<const int> cells);

/// The conditions in reading order for the images that keep the givens.
std::vector<Ascent> FirstThatKeeps(const Square<int>& givens);

}  // namespace numorra
