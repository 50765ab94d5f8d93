#pragma once

#include <chrono>
#include <cstdlib>

namespace numorra {

inline double Setting(const char* name, double otherwise) {
  const char* text = std::getenv(name);
  return text ? std::atof(text) : otherwise;
}

/// How long the open-ended tests run: NUMORRA_SOAK_MINUTES; 0 is the short daily run. NUMORRA_SEED
/// seeds their random choices.
struct Soak {
  double Minutes = Setting("NUMORRA_SOAK_MINUTES", 0);
  unsigned Seed = static_cast<unsigned>(Setting("NUMORRA_SEED", 1));
  std::chrono::steady_clock::time_point Start = std::chrono::steady_clock::now();

  bool Goes() const {
    const std::chrono::duration<double, std::ratio<60>> gone =
        std::chrono::steady_clock::now() - Start;
    return gone.count() < Minutes;
  }
};

}  // namespace numorra
