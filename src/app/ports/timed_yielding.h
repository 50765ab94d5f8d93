#pragma once

#include <chrono>

#include "app/ports/yielding.h"

namespace numorra {

/// Measures the time that something has worked, without the time spent in yields.
class TimedYielding : public Yielding {
 public:
  explicit TimedYielding(Yielding& yielding) : yielding_(yielding) {}

  void Yield() override {
    const auto before = Clock::now();
    yielding_.Yield();
    start_ += Clock::now() - before;
  }

  double SecondsWorked() const {
    return std::chrono::duration<double>(Clock::now() - start_).count();
  }

 private:
  using Clock = std::chrono::steady_clock;

  Yielding& yielding_;
  Clock::time_point start_ = Clock::now();
};

}  // namespace numorra
