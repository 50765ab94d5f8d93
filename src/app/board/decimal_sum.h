#pragma once

#include <cstdint>

namespace numorra {

/// Adds decimals as one does on paper: 0.1 + 0.2 is 0.3, whatever binary fractions make of it.
///
/// The digits before the point are added as they are; those behind it as whole numbers of 10^-14.
/// Exact for numbers of at most 14 digits, as many as a cell takes, and some thousands of them.
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
