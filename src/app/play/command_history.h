#pragma once

#include <string>

namespace numorra {

/// The codes under which editing commands are remembered.
enum class RedoCode {
  MaximumValue = 1,
  MinimumValue,
  RandomValue,
  WholeBoardRandom,
  CorrectRow,
  CorrectColumn,
  CorrectDiagonal,
  SetValue,
  FlipVertical,
  FlipHorizontal,
  FlipDiagonal1,
  FlipDiagonal2,
  Rotate90,
  Rotate180,
  Rotate270,
};

/// What the command's menu item says. SetValue's item says the base value instead.
const char* CaptionOf(RedoCode code);

/// The program's memory of one command, the last: what the "Redo last command" item says and runs.
/// There is no undo, turning and mirroring back is a command like any other.
struct CommandHistory {
  std::string Tag;  ///< the code in decimal, "1" to "15"; empty before the first command
  std::string Caption = "Redo last command";

  void Record(RedoCode code, std::string caption) {
    Tag = std::to_string(static_cast<int>(code));
    Caption = std::move(caption);
  }
};

}  // namespace numorra
