#pragma once

#include <string>

#include "app/ports/build_stage.h"
#include "app/window/frames/solve_frame.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// The window as the stage of a build. Updates the count label when it can be seen: before events
/// are processed and when the build ends; clears it at once.
class WindowStage : public BuildStage {
 public:
  WindowStage(SolveFrame& frame, CommandRunner& runner) : frame_(frame), runner_(runner) {}

  using BuildStage::ShowCount;
  void ShowBusy(bool busy) override;
  void ShowCounter(bool counting) override;
  void ShowCount(const char* text) override;
  void Yield() override;

 private:
  void WriteCount();

  std::string count_;
  SolveFrame& frame_;
  CommandRunner& runner_;
};

}  // namespace numorra
