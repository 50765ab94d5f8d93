#pragma once

#include <functional>

#include "app/ports/build_stage.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// A dialog as the stage of what it makes: it says so when that takes longer than a frame.
class FormStage : public SilentStage {
 public:
  FormStage(CommandRunner& runner, std::function<void()> onWait)
      : runner_(runner), onWait_(std::move(onWait)) {}

  void Yield() override {
    if (runner_.YieldIsDue()) onWait_();
    runner_.Yield();
  }

 private:
  CommandRunner& runner_;
  std::function<void()> onWait_;
};

}  // namespace numorra
