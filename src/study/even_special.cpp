#include <utility>

#include "study/two_digits.h"

namespace numorra {
namespace {

/// One auxiliary square: a sign for each line, and for each crossing line a digit, doubled and
/// minus n - 1.
struct Auxiliary {
  std::vector<int> Signs;
  std::vector<int> Digits;

  int Digit(int line, int crossing) const {
    const int doubled =
        Signs[static_cast<std::size_t>(line)] * Digits[static_cast<std::size_t>(crossing)];
    return (doubled + static_cast<int>(Digits.size()) - 1) / 2;
  }
};

Square<double> EvenSquare(int n, const Auxiliary& a, const Auxiliary& b, Random& random) {
  return SquareOfDigits(n, random,
                        [&](int i, int j) { return std::pair(a.Digit(i, j), b.Digit(j, i)); });
}

/// 1, 3, 5, ..., n - 1, one of each pair, with random signs and in random order.
std::vector<int> OneOfEachPair(int n, Random& random) {
  std::vector<int> halves;
  for (int digit = 1; digit < n; digit += 2)
    halves.push_back(random.Between(0, 1) == 1 ? digit : -digit);
  Shuffle(std::span(halves), random);
  return halves;
}

Auxiliary Alternating(int n, Random& random) {
  Auxiliary square{{}, OneOfEachPair(n, random)};
  for (int i = 0; i < n; ++i)
    square.Signs.push_back(i % 2 == 0 ? 1 : -1);
  for (int j = 0; j < n / 2; ++j)
    square.Digits.push_back(-square.Digits[static_cast<std::size_t>(j)]);
  return square;
}

Auxiliary OppositeInFours(int n, Random& random) {
  constexpr int kSigns[] = {1, -1, -1, 1};
  const auto half = static_cast<std::size_t>(n / 2);
  const std::vector<int> zero = half % 4 == 0
                                    ? AddingUpToZero({}, 1, 2, half, random)
                                    : AddingUpToZero({1, 3, 5, -7, 9, -11}, 13, 2, half, random);
  Auxiliary square{{}, std::vector<int>(static_cast<std::size_t>(n))};
  std::size_t used = 0;
  for (int line = 0; line < n; ++line) {
    square.Signs.push_back(kSigns[line % 4]);
    if (line % 4 > 1) continue;
    const int digit = zero[used++];
    square.Digits[static_cast<std::size_t>(line)] = digit;
    square.Digits[static_cast<std::size_t>(n - 1 - line)] = -digit;
  }
  return square;
}

template <Auxiliary (*Make)(int, Random&)>
Square<double> Made(int n, Random& random) {
  const Auxiliary a = Make(n, random);
  return EvenSquare(n, a, Make(n, random), random);
}

}  // namespace

Square<double> EvenMostPerfect(int order, Random& random) {
  return Made<Alternating>(order, random);
}

Square<double> EvenUltramagic(int order, Random& random) {
  return Made<OppositeInFours>(order, random);
}

}  // namespace numorra
