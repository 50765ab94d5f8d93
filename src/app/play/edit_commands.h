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
/// They write values into the current cell, followed by a totals check. A move that restores the
/// untouched base board is undone, but recorded. Given numbers do not change: commands that write
/// the whole board skip them, every other command is refused on them.
class EditCommands {
 public:
  EditCommands(Board& board, Dialogs& dialogs, Random& random, CommandHistory& history)
      : board_(board), dialogs_(dialogs), random_(random), history_(history) {}

  /// Runs a command of the table, which is recorded afterwards if it has a code. Does nothing
  /// without a board.
  void Run(const EditCommand& command);

  /// Runs the recorded command again, on the current cell; does nothing if there is none.
  void Redo();

  void SetBaseValue();
  void SetMaximum();
  void SetMinimum();
  void SetRandomValue();
  void FillAtRandom();

  /// Sets all cells but the current one to the base value, and the current one to a random value.
  /// Recorded as "entire grid to random values", which a repeat then does.
  void SetAllRem();

  /// The value that makes the line through the current cell right, if there is one.
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
  bool refused_ = false;  ///< the running command was refused and is not recorded
};

}  // namespace numorra
