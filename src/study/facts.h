#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/board/line.h"
#include "study/judgement.h"
#include "study/number_square.h"

namespace numorra {

/// What several terms need of a square, gathered once.
struct Facts {
  explicit Facts(NumberSquare square);

  NumberSquare Square;
  std::vector<Line> Lines;         ///< MagicLines
  std::vector<std::int64_t> Sums;  ///< of the lines, in units; empty without units
  std::int64_t Total = 0;          ///< which most lines share; among equals the first row's
  int LinesOfTotal = 0;            ///< how many do
  std::vector<int> Ascending;      ///< the cells from the smallest number to the largest

  int N() const { return Square.Order(); }
  double Smallest() const { return Square.Numbers()[Ascending.front()]; }
  double Largest() const { return Square.Numbers()[Ascending.back()]; }

  /// "34", a sum as it is shown.
  std::string Shown(std::int64_t units) const { return Square.Shown(units); }

  /// "from 1.5 to 9.5 in steps of 1": a run of numbers, in units, each 1 more than the one before.
  std::string Run(std::int64_t first, std::int64_t last) const;

  /// The number in a cell as it is shown, and where it stands: "7 in row 1, column 2".
  std::string NumberIn(int cell) const;
  std::string NumberAndPlace(int cell) const;
};

}  // namespace numorra
