#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace numorra {

/// An exact product of whole numbers, however long.
class Product {
 public:
  void MultiplyBy(std::int64_t factor);

  /// Its decimal, with a minus sign if it is negative.
  std::string AsDecimal() const;

  bool operator==(const Product&) const = default;

 private:
  static constexpr std::uint64_t kBase = 1'000'000'000;

  std::vector<std::uint64_t> limbs_ = {1};  ///< to the base 10^9, the lowest first; 0 is one 0
  bool negative_ = false;
};

}  // namespace numorra
