#pragma once

#include <gtest/gtest.h>

#include "app/board/numbers.h"
#include "app/board/totals_check.h"
#include "app/play/cell_entry.h"
#include "app/play/edit_commands.h"
#include "support/boards.h"
#include "support/stand_ins.h"

namespace numorra {

/// A checked board in the Variable mode with all that a player can do to it, without a window.
class PlayTest : public testing::Test {
 protected:
  static constexpr const char* kWin = "WELL DONE, YOU GOT IT";

  /// Shows and checks a board; target 15 and base 5 by default.
  void Show(const std::string& rows, double target = 15, std::int16_t base = 5) {
    board_.SolveMode = ModeVariable;
    ShowRows(board_, rows, target, base);
    Recount(board_);
    board_.ReturnTo(1, 1);
  }

  /// Runs a command of the menu.
  void Do(const char* item) { edit_.Run(Command(item)); }
  static const EditCommand& Command(const char* item) { return *FindEdit(std::string(item)); }

  void Go(int row, int column) { board_.grid.SetCurrent(row, column); }

  std::string At(int row, int column) { return board_.grid.Text(row, column); }

  std::pair<int, int> Where() { return {board_.grid.CurrentRow(), board_.grid.CurrentColumn()}; }

  Board board_;
  ScriptedDialogs dialogs_;
  ScriptedRandom random_{{0.0, 0.5, 0.999}};
  CommandHistory history_;
  CellEntry entry_{board_, dialogs_};
  EditCommands edit_{board_, dialogs_, random_, history_};
};

}  // namespace numorra
