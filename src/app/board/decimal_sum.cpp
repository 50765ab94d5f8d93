#include "app/board/decimal_sum.h"

#include <cmath>

#include "app/board/numbers.h"

namespace numorra {
namespace {

constexpr int kDecimals = 14;
constexpr std::int64_t kUnits = 100'000'000'000'000;

double PowerOfTen(int exponent) {
  double power = 1;
  for (; exponent > 0; --exponent)
    power *= 10;
  return power;
}

}  // namespace

void DecimalSum::Add(double number) {
  const double whole = std::trunc(number);
  whole_ += whole;
  if (number == whole) return;
  // Only the decimals that the number was written with; further ones are the double's rounding.
  int decimals = kDecimals;
  for (double left = std::abs(whole); left >= 10 && decimals > 0; left /= 10)
    --decimals;
  const double scaled = std::nearbyint((number - whole) * PowerOfTen(decimals));
  fraction_ += static_cast<std::int64_t>(scaled * PowerOfTen(kDecimals - decimals));
}

double DecimalSum::Total() const {
  const std::int64_t carried = fraction_ / kUnits;
  const double whole = whole_ + static_cast<double>(carried);
  const auto rest = static_cast<double>(fraction_ % kUnits) / static_cast<double>(kUnits);
  return AsShown(whole + rest);
}

}  // namespace numorra
