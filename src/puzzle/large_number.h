#pragma once

#include <cstdint>
#include <vector>

namespace numorra {

/// A natural number of any size, to which digits of any radix are added and taken away again, the
/// last one first.
class LargeNumber {
 public:
  /// The number times `radix`, plus `digit`. Both are at most 2^32.
  void Push(std::uint64_t digit, std::uint64_t radix) {
    std::uint64_t carry = digit;
    for (std::uint32_t& limb : limbs_) {
      const std::uint64_t product = limb * radix + carry;
      limb = static_cast<std::uint32_t>(product);
      carry = product >> 32U;
    }
    if (carry > 0) limbs_.push_back(static_cast<std::uint32_t>(carry));
  }

  /// Divides the number by `radix`, at most 2^32, and returns the remainder.
  std::uint64_t Pop(std::uint64_t radix) {
    std::uint64_t rest = 0;
    for (auto limb = limbs_.rbegin(); limb != limbs_.rend(); ++limb) {
      const std::uint64_t part = rest << 32U | *limb;
      *limb = static_cast<std::uint32_t>(part / radix);
      rest = part % radix;
    }
    while (!limbs_.empty() && limbs_.back() == 0)
      limbs_.pop_back();
    return rest;
  }

  bool IsZero() const { return limbs_.empty(); }

 private:
  std::vector<std::uint32_t> limbs_;  ///< the lowest first; the last one is not 0
};

}  // namespace numorra
