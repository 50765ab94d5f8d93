#include "study/images.h"

#include <utility>

namespace numorra {

/// Bit 0 mirrors left to right, bit 1 top to bottom, bit 2 exchanges rows and columns.
int SourceInImage(int image, int i, int j, int order) {
  if ((image & 4) != 0) std::swap(i, j);
  if ((image & 1) != 0) j = order - 1 - j;
  if ((image & 2) != 0) i = order - 1 - i;
  return i * order + j;
}

Square<double> ImageOf(int image, const Square<double>& square) {
  const int n = square.Order();
  return SquareOf(n, [&](int cell) { return square[SourceInImage(image, cell / n, cell % n, n)]; });
}

Square<double> StandardForm(const Square<double>& square) {
  Square<double> smallest = square;
  for (int image = 1; image < kImages; ++image) {
    if (Square<double> other = ImageOf(image, square); other < smallest)
      smallest = std::move(other);
  }
  return smallest;
}

}  // namespace numorra
