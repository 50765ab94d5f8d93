#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "app/play/board_watch.h"

namespace numorra {

/// What the player did to the board, step by step, to be taken back and done again.
///
/// A step is a command that changed the board; digits typed into one cell are one step. Positions
/// are kept whole, the one before each step and the one that stands now: undo and redo only walk
/// among them. A new step drops what could be done again, and beyond kMostSteps the oldest is
/// forgotten.
class UndoHistory {
 public:
  static constexpr std::size_t kMostSteps = 500;

  /// The name under which digits are typed: such commands are taken together while nothing else
  /// comes between them.
  static constexpr const char* kTyping = "typing";

  /// Listens to every command. The history's own are no steps.
  void Note(const CommandResult& result);

  bool CanUndo() const { return now_ > 0; }
  bool CanRedo() const { return now_ < names_.size(); }

  /// The names of the step that would be taken back, and done again; only where there is one.
  const std::string& UndoName() const { return names_[now_ - 1]; }
  const std::string& RedoName() const { return names_[now_]; }

  /// Shows the board as it was before the last step, or after the next; nothing where there is
  /// none.
  void Undo(Board& board);
  void Redo(Board& board);

 private:
  void Walk(Board& board, std::size_t to);
  void ForgetLastStep();

  std::deque<std::string> names_;   ///< of the steps, the oldest first
  std::deque<Position> positions_;  ///< names_[i] led from positions_[i] to positions_[i + 1]
  std::size_t now_ = 0;             ///< how many of the steps are done
  bool typing_ = false;             ///< the last step is typing, and nothing came after it
  bool walking_ = false;            ///< the running command is the history's own
};

}  // namespace numorra
