#include "study/relatives.h"

#include <algorithm>

#include "app/board/decimal_sum.h"
#include "study/images.h"
#include "study/moved_places.h"

namespace numorra {

std::optional<Square<double>> Varied(const Square<double>& square, Random& random) {
  constexpr int kDraws = 1000;
  constexpr int kSmallestWithOthers = 4;
  const Square<double> standard = StandardForm(square);
  for (int draw = 0; square.Order() >= kSmallestWithOthers && draw < kDraws; ++draw) {
    const std::vector<int> lines = DrawOrderOfOpposites(square.Order(), random);
    const auto permuted = WithLinesFrom(square, lines, lines);
    if (StandardForm(permuted) == standard) continue;
    return ImageOf(random.Between(0, kImages - 1), permuted);
  }
  const int first = random.Between(1, kImages - 1);
  for (int image = 0; image < kImages; ++image) {
    auto turned = ImageOf((first + image) % kImages, square);
    if (turned != square) return turned;
  }
  return std::nullopt;
}

Square<double> ComplementOf(const Square<double>& square) {
  const auto [least, most] = std::minmax_element(square.begin(), square.end());
  return SquareOf(square.Order(), [&, least = *least, most = *most](int cell) {
    DecimalSum sum;
    sum.Add(least);
    sum.Add(most);
    sum.Subtract(square[cell]);
    return sum.Total();
  });
}

}  // namespace numorra
