#pragma once

#include "app/board/board.h"
#include "app/ports/build_stage.h"
#include "app/ports/dialogs.h"
#include "app/ports/square_boxes.h"
#include "generate/normal_square.h"

namespace numorra {

/// The command behind the "Auto" button: reads the boxes, builds a magic square and shows it with
/// its totals, which stay uncoloured until a check. Whatever ends it early (a message, a run-time
/// error, a newer command) leaves the board and its state as they were.
class SolveCommand {
 public:
  SolveCommand(Board& board, SquareBoxes& boxes, Dialogs& dialogs, BuildStage& stage,
               Random& random);

  void Auto();

 private:
  void BuildNormalSquare();

  Board& board_;
  SquareBoxes& boxes_;
  Dialogs& dialogs_;
  BuildStage& stage_;
  NormalSquare normal_;
};

}  // namespace numorra
