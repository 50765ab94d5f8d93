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

  SeededRandom Dice{17};
  Board TheBoard;
  PlainBoxes Boxes;
  PlainOptions Options;
  ScriptedDialogs Speech;
  NotingStage Stage;
  ListBoy List2{Dice};
  ListBoy List3{Dice};
  SolveCommand Commands{{TheBoard, Boxes, Options, Speech, Stage, Dice, List2, List3}};
};

}  // namespace numorra
