#pragma once

#include "generate/solve_command.h"
#include "support/stand_ins.h"

namespace numorra {

/// The solve commands without a window, in the Variable mode.
struct SolveHarness {
  SolveHarness() { TheBoard.SolveMode = ModeVariable; }

  void Auto(const std::string& size, const std::string& sum) {
    Boxes.SizeText = size;
    Boxes.SumText = sum;
    Commands.Auto();
  }

  CommandContext Context() { return {TheBoard, Boxes, TheDialogs, TheRandom}; }

  SeededRandom TheRandom{17};
  Board TheBoard;
  PlainBoxes Boxes;
  PlainOptions Options;
  ScriptedDialogs TheDialogs;
  NotingStage Stage;
  ListBoy List2{TheRandom};
  ListBoy List3{TheRandom};
  SolveCommand Commands{{Context(), Options, Stage, List2, List3}};
};

}  // namespace numorra
