#include "study/number_square.h"

#include <cmath>
#include <utility>

namespace numorra {
namespace {

constexpr int kMostDecimals = 13;

/// Sets `units` to `number` in units of 1 / `one`; false if that is not a whole number. Both are
/// exact as doubles, so their quotient is the double nearest to the decimal.
bool ToUnits(double number, std::int64_t one, std::int64_t& units) {
  const double scaled = std::nearbyint(number * static_cast<double>(one));
  if (!(std::abs(scaled) <= static_cast<double>(NumberSquare::kMostUnits))) return false;
  units = static_cast<std::int64_t>(scaled);
  return scaled / static_cast<double>(one) == number;
}

}  // namespace

NumberSquare::NumberSquare(Square<double> numbers)
    : numbers_(std::move(numbers)), units_(numbers_.Order()) {
  const auto allAreWhole = [this] {
    for (int cell = 0; cell < numbers_.Size(); ++cell) {
      if (!ToUnits(numbers_[cell], one_, units_[cell])) return false;
    }
    return true;
  };
  while (!allAreWhole()) {
    if (++decimals_ > kMostDecimals) {
      units_ = {};
      return;
    }
    one_ *= 10;
  }
}

std::string NumberSquare::Shown(const std::string& units, int factors) const {
  const bool negative = units.front() == '-';
  std::string digits = units.substr(negative ? 1 : 0);
  const auto decimals = static_cast<std::size_t>(decimals_) * static_cast<std::size_t>(factors);
  if (decimals > 0) {
    if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
    digits.insert(digits.size() - decimals, ".");
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') digits.pop_back();
  }
  return negative ? "-" + digits : digits;
}

}  // namespace numorra
