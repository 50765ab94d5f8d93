#pragma once

#include <cstdint>

#include "app/ports/work_stage.h"

namespace numorra {

/// What a build shows: the count label and the busy pointer.
class BuildStage : public WorkStage {
 public:
  /// Shows the count label in place of the "Auto" button, or the button again.
  virtual void ShowCounter(bool counting) = 0;

  /// Sets the text of the count label.
  virtual void ShowCount(const char* text) = 0;
  void ShowCount(std::int32_t count);
};

/// A stage that shows nothing. Its builds yield to `yielding`, or not at all.
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

/// Shows the count label for a scope.
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
