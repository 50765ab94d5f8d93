#pragma once

#include "app/board/command_context.h"
#include "app/play/hints.h"

namespace numorra {

/// Makes the numbers on the board the givens of a puzzle, and says how many solutions it has. If
/// the numbers suit both rules, says what each gives and asks which to take.
Remark EnterPuzzle(const CommandContext& context, WorkStage& stage);

}  // namespace numorra
