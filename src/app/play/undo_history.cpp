#include "app/play/undo_history.h"

#include <utility>

#include "words/say.h"

namespace numorra {

void UndoHistory::Note(const CommandResult& result) {
  const bool walked = std::exchange(walking_, false);
  const bool typed = result.Name == kTyping || result.Name == kNoting;
  const std::string name = typed ? SayIn("undone", result.Name.c_str()) : result.Name;
  if (!typed || walked || (typing_ && names_.back() != name)) typing_ = false;
  if (walked || !IsStep(result.Before, result.After)) return;
  if (typing_) {
    positions_.back() = result.After;
    if (!IsStep(positions_[now_ - 1], positions_[now_])) ForgetLastStep();
    return;
  }
  typing_ = typed;
  names_.resize(now_);
  positions_.resize(now_);
  names_.push_back(name);
  positions_.push_back(result.Before);
  positions_.push_back(result.After);
  if (names_.size() > kMostSteps) {
    names_.pop_front();
    positions_.pop_front();
  }
  now_ = names_.size();
}

/// Typing has restored the old text.
void UndoHistory::ForgetLastStep() {
  names_.pop_back();
  positions_.pop_back();
  now_ = names_.size();
  typing_ = false;
}

void UndoHistory::Undo(Board& board) {
  if (CanUndo()) Walk(board, now_ - 1);
}

void UndoHistory::Redo(Board& board) {
  if (CanRedo()) Walk(board, now_ + 1);
}

void UndoHistory::Walk(Board& board, std::size_t to) {
  walking_ = true;
  positions_[now_] = PositionOf(board);  // checks and moves are not steps, but come back too
  Restore(board, positions_[to]);
  now_ = to;
}

}  // namespace numorra
