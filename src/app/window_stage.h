#pragma once

#include <string>

#include "app/command_runner.h"
#include "app/ports/build_stage.h"
#include "app/solve_frame.h"

namespace numorra {

/// The window as the stage of a build. The count goes into its label whenever the label can be
/// seen: before events run and when the build is over.
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
