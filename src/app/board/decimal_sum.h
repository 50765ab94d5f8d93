#pragma once

#include <cstdint>

namespace numorra {

/// Adds decimals as on paper: 0.1 + 0.2 is 0.3, without the errors of binary fractions.
///
/// Adds the digits before the point as they are, and those after it in units of 10^-14. Exact for
/// some thousands of numbers of at most 14 digits, as many as a cell takes.
class DecimalSum {
 public:
  void Add(double number);
  void Subtract(double number) { Add(-number); }

  /// The sum as it is shown.
  double Total() const;

 private:
  double whole_ = 0;
  std::int64_t fraction_ = 0;  ///< in units of 10^-14
};

}  // namespace numorra
