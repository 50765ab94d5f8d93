#include "study/product.h"

#include "study/wide.h"

namespace numorra {

void Product::MultiplyBy(std::int64_t factor) {
  if (factor == 0) {
    limbs_ = {0};
    negative_ = false;
    return;
  }
  if (limbs_.back() != 0 && factor < 0) negative_ = !negative_;
  const Wide size = factor < 0 ? -static_cast<Wide>(factor) : static_cast<Wide>(factor);
  Wide carry = 0;
  for (std::uint64_t& limb : limbs_) {
    carry += size * limb;
    limb = static_cast<std::uint64_t>(carry % kBase);
    carry /= kBase;
  }
  for (; carry != 0; carry /= kBase)
    limbs_.push_back(static_cast<std::uint64_t>(carry % kBase));
}

std::string Product::AsDecimal() const {
  constexpr std::size_t kDigitsOfLimb = 9;
  std::string digits = negative_ ? "-" : "";
  digits += std::to_string(limbs_.back());
  for (auto limb = limbs_.rbegin() + 1; limb != limbs_.rend(); ++limb) {
    const std::string part = std::to_string(*limb);
    digits.append(kDigitsOfLimb - part.size(), '0').append(part);
  }
  return digits;
}

}  // namespace numorra
