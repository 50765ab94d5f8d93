#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <vector>

#include "support/slow_checker.h"

namespace slow {

/// All normal magic squares of order 4 with their smallest corner at the top left and its right
/// neighbour smaller than the one below, row by row.
inline std::vector<Rows> SquaresOfOrder4() {
  using Row = std::vector<double>;
  std::map<unsigned, std::vector<Row>> rows;  // rows with sum 34, by the set of their numbers
  for (int a = 1; a <= 16; ++a) {
    for (int b = 1; b <= 16; ++b) {
      for (int c = 1; c <= 16; ++c) {
        const int d = 34 - a - b - c;
        if (d < 1 || d > 16 || std::set<int>{a, b, c, d}.size() < 4) continue;
        rows[1U << a | 1U << b | 1U << c | 1U << d].push_back(
            {double(a), double(b), double(c), double(d)});
      }
    }
  }
  std::vector<Rows> squares;
  const auto complete = [&](const Row& first, const Row& second, const Row& third) {
    const Row last = {34 - first[0] - second[0] - third[0], 34 - first[1] - second[1] - third[1],
                      34 - first[2] - second[2] - third[2], 34 - first[3] - second[3] - third[3]};
    if (first[0] + second[1] + third[2] + last[3] != 34) return;
    if (first[3] + second[2] + third[1] + last[0] != 34) return;
    const Rows square{first, second, third, last};
    if (first[0] < last[0] && first[0] < last[3] && WhyNotNormal(square).empty()) {
      squares.push_back(square);
    }
  };
  for (const auto& [set1, firsts] : rows) {
    for (const auto& [set2, seconds] : rows) {
      for (const auto& [set3, thirds] : rows) {
        if ((set1 & set2) != 0 || ((set1 | set2) & set3) != 0) continue;
        for (const Row& first : firsts) {
          for (const Row& second : seconds) {
            if (first[0] > first[3] || first[1] > second[0]) continue;
            for (const Row& third : thirds)
              complete(first, second, third);
          }
        }
      }
    }
  }
  std::sort(squares.begin(), squares.end());
  return squares;
}

/// All 7,040: the eight images of each.
inline std::vector<Rows> ImagesOfOrder4() {
  std::vector<Rows> images;
  for (Rows square : SquaresOfOrder4()) {
    for (int image = 0; image < 8; ++image) {
      images.push_back(square);
      Rows turned = square;
      for (std::size_t r = 0; r < 4; ++r) {
        for (std::size_t c = 0; c < 4; ++c)
          turned[c][3 - r] = square[r][c];
      }
      square = turned;
      if (image == 3) std::reverse(square.begin(), square.end());
    }
  }
  return images;
}

}  // namespace slow
