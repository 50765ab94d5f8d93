#pragma once

#include <cstdint>

namespace numorra {

/// The splitmix64 generator (Steele, Lea and Flood 2014) for loops that draw millions of numbers.
class FastRandom {
 public:
  explicit FastRandom(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    std::uint64_t z = state_ += 0x9e3779b97f4a7c15;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
    z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
    return z ^ (z >> 31);
  }

  /// Uniform in [0, 1).
  double Share() { return static_cast<double>(Next() >> 11) * 0x1p-53; }

  /// Uniform in 0..count - 1.
  int Below(int count) {
    return static_cast<int>(((Next() >> 32) * static_cast<std::uint64_t>(count)) >> 32);
  }

 private:
  std::uint64_t state_;
};

}  // namespace numorra
