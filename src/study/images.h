#pragma once

#include "app/board/square.h"

namespace numorra {

/// The eight images of a square: itself, turned, mirrored.
inline constexpr int kImages = 8;

/// What the image is: "turned half round". Image 0 is the square itself.
const char* NameOfImage(int image);

/// The index of the cell of the square that stands at (i, j) of the image.
int SourceInImage(int image, int i, int j, int order);

/// Of the eight images the one that is smallest in reading order. For distinct numbers that is the
/// one with the smallest of the corners at the top left and the smaller of its two neighbours to
/// the right of it (Frénicle 1693). Two squares are the same when their standard forms are.
Square<double> StandardForm(const Square<double>& square);

Square<double> ImageOf(int image, const Square<double>& square);

}  // namespace numorra
