#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/board/line.h"
#include "study/judgement.h"
#include "study/number_square.h"
#include "words/say.h"

namespace numorra {

/// Facts about a square that several terms need, computed once.
struct Facts {
  explicit Facts(NumberSquare square);

  NumberSquare Square;
  std::vector<Line> Lines;         ///< MagicLines
  std::vector<std::int64_t> Sums;  ///< of the lines, in units; empty without units
  std::int64_t Total = 0;          ///< shared by most lines; among equals the first row's
  int LinesOfTotal = 0;            ///< lines with this total
  std::vector<int> Ascending;      ///< the cells from the smallest number to the largest

  int N() const { return Square.Order(); }
  double Smallest() const { return Square.Numbers()[Ascending.front()]; }
  double Largest() const { return Square.Numbers()[Ascending.back()]; }

  /// A sum as sentences show it: "34".
  std::string Shown(std::int64_t units) const { return Written(Square.Shown(units)); }

  /// The number in a cell as sentences show it; with its place: "7 in row 1, column 2".
  std::string NumberIn(int cell) const;
  std::string NumberAndPlace(int cell) const;
};

}  // namespace numorra
