#include "study/wide.h"

#include <algorithm>
#include <cstdlib>

namespace numorra {

std::string DecimalOf(Wide number) {
  std::string digits;
  const bool negative = number < 0;
  do {
    const int digit = static_cast<int>(number % 10);
    digits += static_cast<char>('0' + std::abs(digit));
    number /= 10;
  } while (number != 0);
  if (negative) digits += '-';
  std::reverse(digits.begin(), digits.end());
  return digits;
}

}  // namespace numorra
