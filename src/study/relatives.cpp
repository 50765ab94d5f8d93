#include "study/relatives.h"

#include <algorithm>

#include "app/board/decimal_sum.h"
#include "study/images.h"
#include "study/moved_places.h"

namespace numorra {
std::optional<std::vector<double>> Varied(int order, const std::vector<double>& numbers,
                                          Random& random) {
  constexpr int kDraws = 1000;
  constexpr int kSmallestWithOthers = 4;
  const std::vector<double> standard = StandardForm(order, numbers);
  for (int draw = 0; order >= kSmallestWithOthers && draw < kDraws; ++draw) {
    const std::vector<int> lines = DrawOrderOfOpposites(order, random);
    const auto permuted = WithLinesFrom(numbers, lines, lines);
    if (StandardForm(order, permuted) == standard) continue;
    return ImageOf(random.Between(0, kImages - 1), order, permuted);
  }
  const int first = random.Between(1, kImages - 1);
  for (int image = 0; image < kImages; ++image) {
    auto turned = ImageOf((first + image) % kImages, order, numbers);
    if (turned != numbers) return turned;
  }
  return std::nullopt;
}

std::vector<double> ComplementOf(const std::vector<double>& numbers) {
  const auto [least, most] = std::minmax_element(numbers.begin(), numbers.end());
  std::vector<double> complement;
  complement.reserve(numbers.size());
  for (const double number : numbers) {
    DecimalSum sum;
    sum.Add(*least);
    sum.Add(*most);
    sum.Subtract(number);
    complement.push_back(sum.Total());
  }
  return complement;
}

}  // namespace numorra
