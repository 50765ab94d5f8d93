#pragma once

#include <cstdint>

namespace numorra {

/// Thrown out of a build's yield when something newer has to run. It unwinds to the command
/// runner; builds work on values of their own, so nothing has changed by then.
struct Superseded {};

/// What a long build shows of itself and where it lets the window live.
class BuildStage {
 public:
  virtual ~BuildStage() = default;

  /// The busy pointer, or the default one.
  virtual void ShowBusy(bool busy) = 0;

  /// The count label in the place of the "Auto" button, or the button again.
  virtual void ShowCounter(bool counting) = 0;

  /// The count label's text.
  virtual void ShowCount(const char* text) = 0;
  void ShowCount(std::int32_t count);

  /// Lets pending events run; throws Superseded when the build is to stop.
  virtual void Yield() = 0;
};

/// A stage without an audience, for builds outside a window.
class SilentStage : public BuildStage {
 public:
  using BuildStage::ShowCount;
  void ShowBusy(bool) override {}
  void ShowCounter(bool) override {}
  void ShowCount(const char*) override {}
  void Yield() override {}
};

/// The busy pointer for a scope.
class BusyPointer {
 public:
  explicit BusyPointer(BuildStage& stage) : stage_(stage) { stage_.ShowBusy(true); }
  ~BusyPointer() { stage_.ShowBusy(false); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  BuildStage& stage_;
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
