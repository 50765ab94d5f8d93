#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "app/play/board_watch.h"
#include "words/say.h"

namespace numorra {

/// The player's changes of the board, step by step, for undo and redo.
///
/// A step is a command that changed the board or its notes; digits typed into one cell are one
/// step. Positions are stored in full, one before each step and the current one; undo and redo move
/// among them. A new step drops the steps that could be redone; beyond kMostSteps the oldest is
/// dropped.
class UndoHistory {
 public:
  static constexpr std::size_t kMostSteps = 500;

  /// The name of commands that type digits: they are one step as long as nothing else comes between
  /// them.
  static constexpr const char* kTyping = MarkIn("undone", "typing");

  /// The name of commands that type the digits of a note: one step in the same way.
  static constexpr const char* kNoting = MarkIn("undone", "note");

  /// Listens to every command. The history's own commands are not steps.
  void Note(const CommandResult& result);

  bool CanUndo() const { return now_ > 0; }
  bool CanRedo() const { return now_ < names_.size(); }

  /// The next digits begin a new step.
  void EndTyping() { typing_ = false; }

  /// How many steps can be undone, and the board before the last `steps` of them.
  std::size_t Done() const { return now_; }
  const Position& Back(std::size_t steps) const { return positions_[now_ - steps]; }

  /// The names of the steps to undo and to redo, as said; call them only if there is one.
  const std::string& UndoName() const { return names_[now_ - 1]; }
  const std::string& RedoName() const { return names_[now_]; }

  /// Shows the board before the last step, or after the next; does nothing if there is none.
  void Undo(Board& board);
  void Redo(Board& board);

  /// Undoes the last `steps` steps at once; they can be redone one by one.
  void UndoSteps(Board& board, std::size_t steps) { Walk(board, now_ - steps); }

 private:
  void Walk(Board& board, std::size_t to);
  void ForgetLastStep();

  std::deque<std::string> names_;   ///< of the steps, the oldest first
  std::deque<Position> positions_;  ///< names_[i] led from positions_[i] to positions_[i + 1]
  std::size_t now_ = 0;             ///< how many of the steps are done
  bool typing_ = false;             ///< the last step is typing and may still grow
  bool walking_ = false;            ///< the running command is the history's own
};

}  // namespace numorra
