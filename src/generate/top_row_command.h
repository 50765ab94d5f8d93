#pragma once

#include <string>

#include "app/board/board.h"
#include "app/ports/build_stage.h"
#include "app/ports/dialogs.h"
#include "app/ports/square_boxes.h"
#include "generate/top_row_square.h"

namespace numorra {

/// The command behind "4x4Set": asks for a top row until it is one or the player gives up, and
/// shows a 4 x 4 magic square with it.
class TopRowCommand {
 public:
  TopRowCommand(Board& board, SquareBoxes& boxes, Dialogs& dialogs, BuildStage& stage,
                Random& random)
      : board_(board), boxes_(boxes), dialogs_(dialogs), stage_(stage), random_(random) {}

  /// True when a square was shown: the board is then one of the Variable mode.
  bool Run();

 private:
  Board& board_;
  SquareBoxes& boxes_;
  Dialogs& dialogs_;
  BuildStage& stage_;
  Random& random_;

  /// The top row of the last square, with which the next question starts: a date makes a birthday
  /// square.
  std::string Last4x4Preset = "30,9,19,95";
};

}  // namespace numorra
