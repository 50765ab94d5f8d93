#include "study/two_digits.h"

namespace numorra {

std::vector<int> AddingUpToZero(std::vector<int> first, int next, int step, std::size_t count,
                                Random& random) {
  while (first.size() < count) {
    first.insert(first.end(), {next, -next - step, -next - 2 * step, next + 3 * step});
    next += 4 * step;
  }
  if (random.Between(0, 1) == 1) {
    for (int& number : first)
      number = -number;
  }
  Shuffle(std::span(first), random);
  return first;
}

}  // namespace numorra
