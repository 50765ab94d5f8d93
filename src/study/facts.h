#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/board/line.h"
#include "study/judgement.h"
#include "study/number_square.h"

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

  /// A sum as it is shown: "34".
  std::string Shown(std::int64_t units) const { return Square.Shown(units); }

  /// "from 1.5 to 9.5 in steps of 1": a run of numbers, in units, each 1 more than the one before.
  std::string Run(std::int64_t first, std::int64_t last) const;

  /// The number in a cell as it is shown; with its place: "7 in row 1, column 2".
  std::string NumberIn(int cell) const;
  std::string NumberAndPlace(int cell) const;
};

}  // namespace numorra
