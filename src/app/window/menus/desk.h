#pragma once

#include <string>

#include "app/play/session.h"
#include "app/window/board/board_place.h"
#include "app/window/frames/control_column.h"
#include "app/window/menus/board_menu.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// What the parts of the window work with: the session in play, the way in which commands run, and
/// where they are shown.
class Desk {
 public:
  Session& TheSession;
  CommandRunner& Runner;
  Dialogs& TheDialogs;
  BuildStage& Building;  ///< shows that something takes its time
  ControlColumn& Controls;
  BoardPlace& Place;
  BoardMenu& Menu;

  const Board& TheBoard() const { return TheSession.TheBoard; }

  /// Runs a command that acts on the board, which then has the keyboard and is not hidden by a
  /// walk; nothing without a board.
  void RunOnBoard(const std::string& name, CommandRunner::Command command);

  /// The same for what acts on the current cell, which then is in sight.
  void RunOnCurrentCell(const std::string& name, CommandRunner::Command command);

  /// What only shows, writes or opens something, as an action's deed: beside a running command.
  std::function<void()> Beside(CommandRunner::Command body);

  void BringCurrentCellIntoView();

  /// Shows the session's mode.
  void ShowMode();

  /// A board that came from elsewhere is in its mode, and has the keyboard.
  void ShowLaidOut();
};

}  // namespace numorra
