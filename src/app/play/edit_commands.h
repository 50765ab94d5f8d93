#pragma once

#include "app/board/board.h"
#include "app/board/random.h"
#include "app/play/command_history.h"
#include "app/play/edit_table.h"
#include "app/ports/dialogs.h"
#include "transform/adjust.h"
#include "transform/symmetry.h"

namespace numorra {

/// The editing commands of the board's context menu. All of them act on the board on the screen.
///
/// Values go into the current cell, followed by a totals check. A move that brings back the
/// untouched base board is taken back, and recorded all the same. Given numbers stay: commands that
/// write the whole board pass them by, every other one is refused on them.
class EditCommands {
 public:
  EditCommands(Board& board, Dialogs& dialogs, Random& random, CommandHistory& history)
      : board_(board), dialogs_(dialogs), random_(random), history_(history) {}

  /// Runs a command of the table, which records itself when it is done and has a code. Does nothing
  /// without a board.
  void Run(const EditCommand& command);

  /// Runs the recorded command again, on the cell that is then current; nothing before there is
  /// one.
  void Redo();

  void SetBaseValue();
  void SetMaximum();
  void SetMinimum();
  void SetRandomValue();
  void FillAtRandom();

  /// All cells to the base value but the current one, which gets a random value. Recorded as
  /// "entire grid to random values", which is what a repeat does.
  void SetAllRem();

  /// The value with which the line through the current cell is right, where there is one.
  void Adjust(AdjustLine line);

  /// Exchanges the current cell and the remembered one. Records nothing.
  void SwapValue();

  void Turn(const Symmetry& symmetry);

 private:
  void SetCell(double value);
  double RandomValue();

  Board& board_;
  Dialogs& dialogs_;
  Random& random_;
  CommandHistory& history_;
  bool refused_ = false;  ///< the running command was, and is not recorded
};

}  // namespace numorra
