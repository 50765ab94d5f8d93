#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/board/position.h"

namespace numorra {

/// What a command has left behind.
struct CommandResult {
  std::string Name;  ///< what a player would call the command
  Position Before;
  Position After;

  bool ChangedTheBoard() const { return IsChange(Before, After); }
};

/// Compares the board before and after every command, whichever way it ended, and tells those who
/// listen. No command knows of them.
class BoardWatch {
 public:
  using Listener = std::function<void(const CommandResult&)>;

  explicit BoardWatch(const Board& board) : board_(board) {}

  /// Listeners are told in the order in which they came.
  void Listen(Listener listener) { listeners_.push_back(std::move(listener)); }

  void ForgetListeners() { listeners_.clear(); }

  void Begin() { before_ = PositionOf(board_); }
  void End(const std::string& name);

 private:
  const Board& board_;
  Position before_;
  std::vector<Listener> listeners_;
};

}  // namespace numorra
