#include "study/primes.h"

#include <cmath>
#include <cstdint>
#include <initializer_list>

namespace numorra {
namespace {

constexpr double kProvenBelow = 341'550'071'728'321;

std::uint64_t TimesModulo(std::uint64_t a, std::uint64_t b, std::uint64_t modulus) {
  __extension__ using Wide = unsigned __int128;
  return static_cast<std::uint64_t>(static_cast<Wide>(a) * b % modulus);
}

std::uint64_t PowerModulo(std::uint64_t base, std::uint64_t exponent, std::uint64_t modulus) {
  std::uint64_t power = 1;
  for (; exponent > 0; exponent /= 2) {
    if (exponent % 2 == 1) power = TimesModulo(power, base, modulus);
    base = TimesModulo(base, base, modulus);
  }
  return power;
}

/// With p - 1 = odd x 2^twos: whether base^odd is 1, or repeated squaring of it reaches p - 1.
bool PassesStrongTest(std::uint64_t p, std::uint64_t base, std::uint64_t odd, int twos) {
  std::uint64_t power = PowerModulo(base, odd, p);
  if (power == 1) return true;
  for (; twos > 0; --twos) {
    if (power == p - 1) return true;
    power = TimesModulo(power, power, p);
  }
  return false;
}

}  // namespace

bool IsPrime(double number) {
  if (!(number >= 2 && number < kProvenBelow) || number != std::floor(number)) return false;
  const auto p = static_cast<std::uint64_t>(number);
  std::uint64_t odd = p - 1;
  int twos = 0;
  for (; odd % 2 == 0; odd /= 2)
    ++twos;
  for (const std::uint64_t base : {2U, 3U, 5U, 7U, 11U, 13U, 17U}) {
    if (p == base) return true;
    if (p % base == 0 || !PassesStrongTest(p, base, odd, twos)) return false;
  }
  return true;
}

}  // namespace numorra
