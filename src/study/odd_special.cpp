#include <algorithm>
#include <numeric>
#include <utility>

#include "study/two_digits.h"

namespace numorra {
namespace {

/// Digits minus the middle digit, by index.
using Digits = std::vector<int>;

int Modulo(int number, int n) {
  return ((number % n) + n) % n;
}

std::size_t IndexOf(int number, int n) {
  return static_cast<std::size_t>(Modulo(number, n));
}

/// n/3 of the numbers 1 to (n - 1) / 2, with signs so that they add up to 0.
std::vector<int> ThirdAddingUpToZero(int n, Random& random) {
  const auto third = static_cast<std::size_t>(n / 3);
  return third % 4 == 3 ? AddingUpToZero({1, 2, -3}, 4, 1, third, random)
                        : AddingUpToZero({1, 3, -5, -6, 7}, 8, 1, third, random);
}

/// The numbers 1 to `most` that are not in `taken`, whatever their signs, with random signs and in
/// random order.
std::vector<int> Rest(int most, const std::vector<int>& taken, Random& random) {
  std::vector<int> rest;
  for (int number = 1; number <= most; ++number) {
    const bool isTaken = std::any_of(taken.begin(), taken.end(),
                                     [&](int other) { return std::abs(other) == number; });
    if (!isTaken) rest.push_back(random.Between(0, 1) == 1 ? number : -number);
  }
  Shuffle(std::span(rest), random);
  return rest;
}

/// Digits such that those at t and mirror - t add up to 0 and, with `thirds`, each class of indices
/// modulo 3 does, too. One class is its own mirror image; the other two mirror each other.
Digits MirroredDigits(int n, int mirror, bool thirds, Random& random) {
  Digits digits(static_cast<std::size_t>(n));
  const int ownClass = Modulo(2 * mirror, 3);
  const std::vector<int> zero = thirds ? ThirdAddingUpToZero(n, random) : std::vector<int>();
  const std::vector<int> rest = Rest((n - 1) / 2, zero, random);
  std::size_t usedOfZero = 0;
  std::size_t usedOfRest = 0;
  for (int t = 0; t < n; ++t) {
    const std::size_t other = IndexOf(mirror - t, n);
    const auto here = static_cast<std::size_t>(t);
    if (thirds && t % 3 != ownClass) {
      if (t % 3 == (ownClass + 1) % 3) {
        digits[here] = zero[usedOfZero++];
        digits[other] = -digits[here];
      }
    } else if (here < other) {
      digits[here] = rest[usedOfRest++];
      digits[other] = -digits[here];
    }
  }
  return digits;
}

/// Any order of the digits; if 3 divides n, one in which each class of indices modulo 3 adds up to
/// 0.
Digits NasikDigits(int n, Random& random) {
  const int middle = (n - 1) / 2;
  Digits digits(static_cast<std::size_t>(n));
  if (n % 3 != 0) {
    std::iota(digits.begin(), digits.end(), -middle);
    Shuffle(std::span(digits), random);
    return digits;
  }
  std::vector<std::vector<int>> classes = {ThirdAddingUpToZero(n, random), {}, {0}};
  for (const int digit : Rest(middle, classes[0], random))
    classes[2].insert(classes[2].end(), {digit, -digit});
  for (const int digit : classes[0])
    classes[1].push_back(-digit);
  Shuffle(std::span(classes), random);
  for (auto& digitsOfClass : classes)
    Shuffle(std::span(digitsOfClass), random);
  for (int t = 0; t < n; ++t) {
    digits[static_cast<std::size_t>(t)] =
        classes[static_cast<std::size_t>(t % 3)][static_cast<std::size_t>(t / 3)];
  }
  return digits;
}

Square<double> OddSquare(int n, const Digits& a, const Digits& b, Random& random) {
  const int middle = (n - 1) / 2;
  return SquareOfDigits(n, random, [&](int i, int j) {
    return std::pair(a[IndexOf(2 * i + j, n)] + middle, b[IndexOf(2 * i - j, n)] + middle);
  });
}

}  // namespace

Square<double> OddPandiagonal(int order, Random& random) {
  const Digits a = NasikDigits(order, random);
  return OddSquare(order, a, NasikDigits(order, random), random);
}

/// The cell opposite (i, j) has the index -3 - t in A instead of t, and -1 - t in B.
Square<double> OddUltramagic(int order, Random& random) {
  const bool thirds = order % 3 == 0;
  const Digits a = MirroredDigits(order, -3, thirds, random);
  return OddSquare(order, a, MirroredDigits(order, -1, thirds, random), random);
}

}  // namespace numorra
