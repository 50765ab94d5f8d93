#pragma once

#include <string>

#include "app/board/command_context.h"
#include "app/ports/work_stage.h"
#include "generate/top_row_square.h"

namespace numorra {

/// The command behind "4x4Set": asks for a top row until the answer is one or the player cancels,
/// and shows a 4 x 4 magic square with it.
class TopRowCommand {
 public:
  TopRowCommand(const CommandContext& context, WorkStage& stage)
      : context_(context), stage_(stage) {}

  /// Returns true if a square was shown: the board is then one of the Variable mode.
  bool Run();

 private:
  CommandContext context_;
  WorkStage& stage_;

  /// The top row of the last square, suggested in the next question: a date makes a birthday
  /// square.
  std::string Last4x4Preset = "30,9,19,95";
};

}  // namespace numorra
