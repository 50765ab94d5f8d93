#pragma once

#include "app/command_runner.h"
#include "app/ports/build_stage.h"
#include "app/solve_frame.h"

namespace numorra {

/// The window as the stage of a build.
class WindowStage : public BuildStage {
 public:
  WindowStage(SolveFrame& frame, CommandRunner& runner) : frame_(frame), runner_(runner) {}

  using BuildStage::ShowCount;
  void ShowBusy(bool busy) override;
  void ShowCounter(bool counting) override;
  void ShowCount(const char* text) override;
  void Yield() override;

 private:
  SolveFrame& frame_;
  CommandRunner& runner_;
};

}  // namespace numorra
