#pragma once

#include <string>

namespace numorra {

/// The board menu's memory of one command, the last: what its "Redo last command" item says and
/// runs. It is no undo, and knows nothing of one.
struct CommandHistory {
  std::string Tag;  ///< the command's code in decimal; empty before the first command
  std::string Caption = "Redo last command";

  void Record(int code, std::string caption) {
    Tag = std::to_string(code);
    Caption = std::move(caption);
  }
};

}  // namespace numorra
