#pragma once

#include <cmath>
#include <cstdint>

#include "app/board/random.h"

namespace numorra {

/// Random numbers for inner loops that draw millions of them: the splitmix64 generator (Steele, Lea
/// and Flood 2014), seeded once from the program's random numbers. So runs repeat from a seed, and
/// loops end even if those always return the same number.
class QuickRandom {
 public:
  explicit QuickRandom(Random& random) {
    constexpr double kStep = 0x1p24;  // the seed's numbers are multiples of 2^-24
    constexpr int kDraws = 3;
    for (int draw = 0; draw < kDraws; ++draw)
      state_ = state_ * (1U << 24U) + static_cast<std::uint64_t>(random.Next() * kStep);
  }

  /// Uniform over all 32-bit numbers.
  std::uint32_t Next() {
    state_ += 0x9e3779b97f4a7c15;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
    z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
    return static_cast<std::uint32_t>((z ^ (z >> 31)) >> 32);
  }

  /// Uniform in 0..count-1, except for a bias of at most count / 2^32.
  int Below(int count) {
    return static_cast<int>((std::uint64_t{Next()} * static_cast<std::uint64_t>(count)) >> 32);
  }

  /// Uniform in [0, 1).
  double Share() { return Next() * 0x1p-32; }

  /// True with a probability that ChanceOf has converted.
  bool Happens(std::uint32_t chance) { return Next() < chance; }

  /// A probability in units of 2^-32; 1 and above become the largest one.
  static std::uint32_t ChanceOf(double probability) {
    constexpr double kAll = 0x1p32;
    return static_cast<std::uint32_t>(std::fmin(kAll - 1, probability * kAll));
  }

 private:
  std::uint64_t state_ = 0;
};

}  // namespace numorra
