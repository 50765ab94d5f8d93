#include "count/diagonal_sets.h"

#include <algorithm>

namespace numorra {
namespace {

constexpr int kSumOfLine = 65;
constexpr int kLargest = 25;

constexpr NumberSet BitOf(int number) {
  return NumberSet{1} << static_cast<unsigned>(number);
}

/// All sets of four numbers, without the centre, that complete a diagonal.
std::vector<NumberSet> FoursAround(int centre) {
  std::vector<NumberSet> fours;
  for (int a = 1; a <= kLargest; ++a) {
    for (int b = a + 1; b <= kLargest; ++b) {
      for (int c = b + 1; c <= kLargest; ++c) {
        const int d = kSumOfLine - centre - a - b - c;
        if (d <= c || d > kLargest) continue;
        const NumberSet four = BitOf(a) | BitOf(b) | BitOf(c) | BitOf(d);
        if ((four & BitOf(centre)) == 0) fours.push_back(four);
      }
    }
  }
  return fours;
}

}  // namespace

std::vector<DiagonalSet> DiagonalSets(int first, int last) {
  std::vector<DiagonalSet> sets;
  for (int centre = first; centre <= last; ++centre) {
    const std::vector<NumberSet> fours = FoursAround(centre);
    std::vector<NumberSet> eights;
    for (std::size_t i = 0; i < fours.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        if ((fours[i] & fours[j]) == 0) eights.push_back(fours[i] | fours[j]);
      }
    }
    std::sort(eights.begin(), eights.end());
    eights.erase(std::unique(eights.begin(), eights.end()), eights.end());
    for (const NumberSet eight : eights)
      sets.push_back({centre, eight});
  }
  return sets;
}

}  // namespace numorra
