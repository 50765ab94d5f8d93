#include "study/images.h"

#include <utility>

namespace numorra {

const char* NameOfImage(int image) {
  constexpr const char* kNames[kImages] = {"as it is",
                                           "mirrored left to right",
                                           "mirrored top to bottom",
                                           "turned half round",
                                           "mirrored in the diagonal that falls",
                                           "turned a quarter to the left",
                                           "turned a quarter to the right",
                                           "mirrored in the diagonal that rises"};
  return kNames[image];
}

/// Bit 0 mirrors left to right, bit 1 top to bottom, bit 2 exchanges rows and columns.
std::size_t SourceInImage(int image, int i, int j, int order) {
  if ((image & 4) != 0) std::swap(i, j);
  if ((image & 1) != 0) j = order - 1 - j;
  if ((image & 2) != 0) i = order - 1 - i;
  return static_cast<std::size_t>(i * order + j);
}

std::vector<double> ImageOf(int image, int order, const std::vector<double>& numbers) {
  std::vector<double> turned;
  turned.reserve(numbers.size());
  for (int i = 0; i < order; ++i) {
    for (int j = 0; j < order; ++j)
      turned.push_back(numbers[SourceInImage(image, i, j, order)]);
  }
  return turned;
}

std::vector<double> StandardForm(int order, const std::vector<double>& numbers) {
  const auto isBefore = [&](int a, int b) {
    for (int i = 0; i < order; ++i) {
      for (int j = 0; j < order; ++j) {
        const double inA = numbers[SourceInImage(a, i, j, order)];
        const double inB = numbers[SourceInImage(b, i, j, order)];
        if (inA != inB) return inA < inB;
      }
    }
    return false;
  };
  int best = 0;
  for (int image = 1; image < kImages; ++image) {
    if (isBefore(image, best)) best = image;
  }
  return ImageOf(best, order, numbers);
}

}  // namespace numorra
