#pragma once

#include <cstdint>

#include "app/ports/work_stage.h"

namespace numorra {

/// What a build shows of itself: the count label besides the busy pointer.
class BuildStage : public WorkStage {
 public:
  /// The count label in the place of the "Auto" button, or the button again.
  virtual void ShowCounter(bool counting) = 0;

  /// The count label's text.
  virtual void ShowCount(const char* text) = 0;
  void ShowCount(std::int32_t count);
};

/// A stage without an audience: its builds show nothing. They yield where `yielding` does, or not
/// at all.
class SilentStage : public BuildStage {
 public:
  explicit SilentStage(Yielding* yielding = nullptr) : yielding_(yielding) {}

  using BuildStage::ShowCount;
  void ShowBusy(bool) override {}
  void ShowCounter(bool) override {}
  void ShowCount(const char*) override {}
  void Yield() override {
    if (yielding_) yielding_->Yield();
  }

 private:
  Yielding* yielding_;
};

/// The count label for a scope.
class CounterShown {
 public:
  explicit CounterShown(BuildStage& stage) : stage_(stage) { stage_.ShowCounter(true); }
  ~CounterShown() { stage_.ShowCounter(false); }
  CounterShown(const CounterShown&) = delete;
  CounterShown& operator=(const CounterShown&) = delete;

 private:
  BuildStage& stage_;
};

}  // namespace numorra
