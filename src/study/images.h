#pragma once

#include "app/board/square.h"

namespace numorra {

/// The eight images of a square, from 0: as it is, mirrored left to right, mirrored top to bottom,
/// turned half round, mirrored in the diagonal that falls, turned a quarter to the left, turned a
/// quarter to the right, mirrored in the diagonal that rises.
inline constexpr int kImages = 8;

/// The index of the cell that (i, j) of the image shows.
int SourceInImage(int image, int i, int j, int order);

/// The image that is smallest in reading order. For distinct numbers, its top left corner is the
/// smallest of the four corners, and the corner's right neighbour is smaller than the one below
/// (Frénicle 1693). Two squares are the same if their standard forms are equal.
Square<double> StandardForm(const Square<double>& square);

Square<double> ImageOf(int image, const Square<double>& square);

}  // namespace numorra
