#pragma once

#include <vector>

#include "study/number_square.h"

namespace numorra {

/// The eight images of a square: itself, turned, mirrored.
inline constexpr int kImages = 8;

/// What the image is: "turned half round". Image 0 is the square itself.
const char* NameOfImage(int image);

/// The index of the cell of the square that stands at (i, j) of the image.
std::size_t SourceInImage(int image, int i, int j, int order);

/// Of the eight images the one that is smallest in reading order. For distinct numbers that is the
/// one with the smallest of the corners at the top left and the smaller of its two neighbours to
/// the right of it (Frénicle 1693). Two squares are the same when their standard forms are.
std::vector<double> StandardForm(int order, const std::vector<double>& numbers);

/// The image's numbers in reading order.
std::vector<double> ImageOf(int image, int order, const std::vector<double>& numbers);

}  // namespace numorra
