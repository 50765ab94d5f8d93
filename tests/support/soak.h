#pragma once

#include <chrono>
#include <cstdlib>

namespace numorra {

/// How long the open-ended tests go on: NUMORRA_SOAK_MINUTES, 0 for the bounded run of every day.
/// NUMORRA_SEED is what their random choices start from.
class Soak {
 public:
  double Minutes() const { return Number("NUMORRA_SOAK_MINUTES", 0); }
  bool Goes() const {
    return Clock::now() - start_ < std::chrono::duration<double, std::ratio<60>>(Minutes());
  }
  unsigned Seed() const { return static_cast<unsigned>(Number("NUMORRA_SEED", 1)); }

 private:
  using Clock = std::chrono::steady_clock;

  static double Number(const char* name, double otherwise) {
    const char* text = std::getenv(name);
    return text ? std::atof(text) : otherwise;
  }

  Clock::time_point start_ = Clock::now();
};

}  // namespace numorra
