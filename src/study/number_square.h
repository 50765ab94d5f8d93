#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "app/board/place.h"

namespace numorra {

/// A full square of numbers to be studied: n x n numbers in reading order, cells (i, j) with both
/// indices from 0.
///
/// Sums are exact: every number is a whole multiple of one power of ten, its units. Where that
/// would take more than `kMostUnits` there are no units, and what depends on sums is too large to
/// say.
class NumberSquare {
 public:
  /// The largest number of units: four sums of 50 of them still fit into 64 bits.
  static constexpr std::int64_t kMostUnits = 10'000'000'000'000'000;

  /// `numbers` has order x order entries.
  NumberSquare(int order, std::vector<double> numbers);

  int Order() const { return order_; }
  const std::vector<double>& Numbers() const { return numbers_; }

  bool HasUnits() const { return !units_.empty(); }
  const std::vector<std::int64_t>& Units() const { return units_; }
  std::int64_t Unit(int i, int j) const { return units_[Index(i, j)]; }

  /// How many units make 1.
  std::int64_t One() const { return one_; }

  /// The decimal that so many units are; of products of `factors` units with `factors` above 1.
  std::string Shown(std::int64_t units, int factors = 1) const;

  std::size_t Index(int i, int j) const {
    return static_cast<std::size_t>(i) * static_cast<std::size_t>(order_) +
           static_cast<std::size_t>(j);
  }
  Place PlaceOf(std::size_t index) const { return PlaceAt(index, order_); }

 private:
  int order_;
  std::vector<double> numbers_;
  std::vector<std::int64_t> units_;
  std::int64_t one_ = 1;
  int decimals_ = 0;
};

}  // namespace numorra
