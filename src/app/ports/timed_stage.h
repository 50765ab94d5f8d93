#pragma once

#include <chrono>

#include "app/ports/build_stage.h"

namespace numorra {

/// A stage that measures how long its build has worked: the time in which it let others run does
/// not count.
class TimedStage : public BuildStage {
 public:
  explicit TimedStage(BuildStage& stage) : stage_(stage) {}

  using BuildStage::ShowCount;
  void ShowBusy(bool busy) override { stage_.ShowBusy(busy); }
  void ShowCounter(bool counting) override { stage_.ShowCounter(counting); }
  void ShowCount(const char* text) override { stage_.ShowCount(text); }

  void Yield() override {
    const auto before = Clock::now();
    stage_.Yield();
    start_ += Clock::now() - before;
  }

  double SecondsWorked() const {
    return std::chrono::duration<double>(Clock::now() - start_).count();
  }

 private:
  using Clock = std::chrono::steady_clock;

  BuildStage& stage_;
  Clock::time_point start_ = Clock::now();
};

}  // namespace numorra
