#include "study/relatives.h"

#include <algorithm>
#include <numeric>

#include "app/board/decimal_sum.h"
#include "study/images.h"

namespace numorra {
namespace {

/// Where each line goes: pairs of opposite lines exchange places, and the lines of a pair.
std::vector<int> DrawPermutation(int order, Random& random) {
  const int half = order / 2;
  std::vector<int> pairs(static_cast<std::size_t>(half));
  std::iota(pairs.begin(), pairs.end(), 0);
  Shuffle(std::span(pairs), random);
  std::vector<int> lines(static_cast<std::size_t>(order), half);
  for (int i = 0; i < half; ++i) {
    const int pair = pairs[static_cast<std::size_t>(i)];
    const bool turned = random.Between(0, 1) == 1;
    lines[static_cast<std::size_t>(i)] = turned ? order - 1 - pair : pair;
    lines[static_cast<std::size_t>(order - 1 - i)] = turned ? pair : order - 1 - pair;
  }
  return lines;
}

std::vector<double> Permuted(const std::vector<double>& numbers, const std::vector<int>& lines) {
  std::vector<double> permuted;
  permuted.reserve(numbers.size());
  for (const int i : lines) {
    for (const int j : lines)
      permuted.push_back(
          numbers[static_cast<std::size_t>(i) * lines.size() + static_cast<std::size_t>(j)]);
  }
  return permuted;
}

}  // namespace

std::optional<std::vector<double>> Varied(int order, const std::vector<double>& numbers,
                                          Random& random) {
  constexpr int kDraws = 1000;
  constexpr int kSmallestWithOthers = 4;
  const std::vector<double> standard = StandardForm(order, numbers);
  for (int draw = 0; order >= kSmallestWithOthers && draw < kDraws; ++draw) {
    const auto permuted = Permuted(numbers, DrawPermutation(order, random));
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
