#pragma once

#include "generate/solve_command.h"
#include "support/plain_boxes.h"
#include "support/scripted_dialogs.h"

namespace numorra {

/// A stage that notes what is shown, and may interrupt a build at one of its yields.
class NotingStage : public BuildStage {
 public:
  using BuildStage::ShowCount;
  void ShowBusy(bool busy) override { Busy = busy; }
  void ShowCounter(bool counting) override { Counting = counting; }
  void ShowCount(const char* text) override { Count = text; }
  void Yield() override {
    if (YieldsLeft >= 0 && YieldsLeft-- == 0) OnLastYield();
  }

  bool Busy = false;
  bool Counting = false;
  std::string Count;
  int YieldsLeft = -1;
  std::function<void()> OnLastYield = [] { throw Superseded(); };
};

struct PlainOptions : BuildOptions {
  bool LimitToNine() const override { return Limit; }
  void UncheckLimit() override { Limit = false; }
  std::optional<double> Corner() const override { return WantedCorner; }
  bool Limit = false;
  std::optional<double> WantedCorner;
};

/// The solve commands without a window, in the Variable mode.
struct SolveHarness {
  SolveHarness() { TheBoard.SolveMode = ModeVariable; }

  void Auto(const std::string& size, const std::string& sum) {
    Boxes.SizeText = size;
    Boxes.SumText = sum;
    Commands.Auto();
  }

  TickingClock Time{17};
  ClockSeededRandom Dice{Time};
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
