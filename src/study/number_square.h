#pragma once

#include <cstdint>
#include <string>

#include "app/board/line.h"
#include "app/board/square.h"

namespace numorra {

/// A full square of numbers to study; cells (i, j) have both indices from 0.
///
/// Sums are exact: every number is a whole multiple of its unit, a power of ten. If that takes more
/// than `kMostUnits` units, there are no units, and whatever depends on sums is too large to say.
class NumberSquare {
 public:
  /// The largest number of units: four sums of 50 of them still fit into 64 bits.
  static constexpr std::int64_t kMostUnits = 10'000'000'000'000'000;

  explicit NumberSquare(Square<double> numbers);

  int Order() const { return numbers_.Order(); }
  const Square<double>& Numbers() const { return numbers_; }

  bool HasUnits() const { return !units_.IsEmpty(); }
  const Square<std::int64_t>& Units() const { return units_; }
  std::int64_t Unit(int i, int j) const { return units_[Index(i, j)]; }

  /// The number of units in 1.
  std::int64_t One() const { return one_; }

  /// The decimal for a number of units, or for the decimal digits of one; with `factors` above 1,
  /// for products of that many units.
  std::string Shown(std::int64_t units) const { return Shown(std::to_string(units), 1); }
  std::string Shown(const std::string& units, int factors) const;

  int Index(int i, int j) const { return i * Order() + j; }
  Place PlaceOf(int cell) const { return numbers_.PlaceOf(cell); }

 private:
  Square<double> numbers_;
  Square<std::int64_t> units_;
  std::int64_t one_ = 1;
  int decimals_ = 0;
};

/// The sum of a line's cells, in units.
inline std::int64_t SumOf(Line line, const NumberSquare& square) {
  return SumOf(line, square.Order(), [&](int cell) { return square.Units()[cell]; });
}

}  // namespace numorra
