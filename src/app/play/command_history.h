#pragma once

#include <string>
#include <utility>

#include "words/say.h"

namespace numorra {

/// Remembers the last command for the board menu's "Redo last command" item. It is not an undo
/// history.
struct CommandHistory {
  std::string Tag;  ///< the command's code in decimal; empty before the first command
  std::string Caption = Say("Redo last command");

  void Record(int code, std::string caption) {
    Tag = std::to_string(code);
    Caption = std::move(caption);
  }
};

}  // namespace numorra
