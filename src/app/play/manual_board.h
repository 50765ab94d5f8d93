#pragma once

#include "app/board/command_context.h"
#include "app/ports/build_stage.h"

namespace numorra {

/// The "Manual" command: a board for the player to solve, checked from the start. In the Variable
/// mode every cell holds one more than its share of the sum, so that the board is not the untouched
/// base board; in the Normal mode the cells hold 1 to n x n in reading order. A refused size
/// changes nothing but the sum box.
void BuildManualBoard(const CommandContext& context, BuildStage& stage);

}  // namespace numorra
