#pragma once

#include "app/board/board.h"
#include "app/board/random.h"
#include "app/play/command_history.h"
#include "app/ports/dialogs.h"
#include "transform/adjust.h"

namespace numorra {

/// The editing commands of the board's context menu. Those with a code are recorded once done, to
/// be repeated on whatever cell is then current. All of them act on the board on the screen, and do
/// nothing without one.
class EditCommands {
 public:
  EditCommands(Board& board, Dialogs& dialogs, Random& random, CommandHistory& history)
      : board_(board), dialogs_(dialogs), random_(random), history_(history) {}

  /// Runs the command and records it.
  ///
  /// Values go into the current cell, followed by a totals check. A move that brings back the
  /// untouched base board is taken back, and recorded all the same.
  void Run(RedoCode code);

  /// Runs the recorded command again; nothing before there is one.
  void Redo();

  /// All cells to the base value but the current one, which gets a random value. Recorded as
  /// "entire grid to random values", which is what a repeat does.
  void SetAllRem();

  /// Exchanges the current cell and the remembered one. Records nothing.
  void SwapValue();

 private:
  void SetCell(double value);
  bool Adjust(AdjustLine line);
  double RandomValue();
  double LargestValue() const;
  double SmallestValue() const;
  void FillWithRandomValues();

  Board& board_;
  Dialogs& dialogs_;
  Random& random_;
  CommandHistory& history_;
};

}  // namespace numorra
