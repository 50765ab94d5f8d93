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

Square<double> Permuted(const Square<double>& square, const std::vector<int>& lines) {
  const int n = square.Order();
  const auto source = [&](int line) { return lines[static_cast<std::size_t>(line)]; };
  return SquareOf(n, [&](int cell) { return square[source(cell / n) * n + source(cell % n)]; });
}

}  // namespace

std::optional<Square<double>> Varied(const Square<double>& square, Random& random) {
  constexpr int kDraws = 1000;
  constexpr int kSmallestWithOthers = 4;
  const Square<double> standard = StandardForm(square);
  for (int draw = 0; square.Order() >= kSmallestWithOthers && draw < kDraws; ++draw) {
    const auto permuted = Permuted(square, DrawPermutation(square.Order(), random));
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
