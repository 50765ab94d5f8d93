#pragma once

#include "app/board/board.h"
#include "app/board/random.h"
#include "app/ports/dialogs.h"
#include "app/ports/square_boxes.h"

namespace numorra {

/// What every command needs.
struct CommandContext {
  Board& TheBoard;
  SquareBoxes& Boxes;
  Dialogs& TheDialogs;
  Random& TheRandom;
};

}  // namespace numorra
