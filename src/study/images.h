#pragma once

#include "app/board/square.h"

namespace numorra {

/// The eight images of a square: itself, turned, mirrored.
inline constexpr int kImages = 8;

/// What the image is: "turned half round". Image 0 is the square itself.
const char* NameOfImage(int image);

/// The index of the cell that (i, j) of the image shows.
int SourceInImage(int image, int i, int j, int order);

/// The image that is smallest in reading order. For distinct numbers, its top left corner is the
/// smallest of the four corners, and the corner's right neighbour is smaller than the one below
/// (Frénicle 1693). Two squares are the same if their standard forms are equal.
Square<double> StandardForm(const Square<double>& square);

Square<double> ImageOf(int image, const Square<double>& square);

}  // namespace numorra
