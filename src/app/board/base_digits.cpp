#include "app/board/base_digits.h"

#include <cmath>
#include <vector>

namespace numorra {

std::optional<BaseDigits> BaseDigitsOf(const Square<double>& square) {
  const int n = square.Order();
  BaseDigits digits{Square<int>(n), Square<int>(n)};
  std::vector<bool> seen(static_cast<std::size_t>(square.Size()));
  for (int cell = 0; cell < square.Size(); ++cell) {
    const double number = square[cell];
    if (!(number >= 1 && number <= square.Size()) || number != std::floor(number)) return {};
    const int rank = static_cast<int>(number) - 1;
    if (seen[static_cast<std::size_t>(rank)]) return {};
    seen[static_cast<std::size_t>(rank)] = true;
    digits.High[cell] = rank / n;
    digits.Low[cell] = rank % n;
  }
  return digits;
}

}  // namespace numorra
