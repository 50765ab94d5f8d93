#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/board/position.h"

namespace numorra {

/// What a command has changed.
struct CommandResult {
  std::string Name;  ///< the player's name for the command
  Position Before;
  Position After;

  bool ChangedTheBoard() const { return IsChange(Before, After); }
};

/// Compares the board before and after every command, however it ended, and notifies the listeners.
/// No command knows them.
class BoardWatch {
 public:
  using Listener = std::function<void(const CommandResult&)>;

  explicit BoardWatch(const Board& board) : board_(board) {}

  /// Listeners are notified in the order in which they were added.
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
