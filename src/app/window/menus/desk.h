#pragma once

#include <optional>
#include <string>

#include "app/play/session.h"
#include "app/window/board/board_place.h"
#include "app/window/forms/export_form.h"
#include "app/window/forms/worksheet_form.h"
#include "app/window/frames/control_column.h"
#include "app/window/menus/board_menu.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// What the parts of the window share: the session, the command runner and the places that show
/// results.
class Desk {
 public:
  Session& TheSession;
  CommandRunner& Runner;
  Dialogs& TheDialogs;
  BuildStage& Building;  ///< shows that something takes time
  ControlColumn& Controls;
  BoardPlace& Place;
  BoardMenu& Menu;
  std::optional<SheetChoice> Sheet = {};  ///< what was last chosen for worksheets
  PictureChoice Picture = {};             ///< and for pictures

  const Board& TheBoard() const { return TheSession.TheBoard; }

  /// Runs a command that acts on the board; the board gets the keyboard, and a walk no longer hides
  /// it. Does nothing without a board.
  void RunOnBoard(const std::string& name, CommandRunner::Command command);

  /// The same for a command on the current cell, which becomes visible.
  void RunOnCurrentCell(const std::string& name, CommandRunner::Command command);

  /// An action that only shows, writes or opens something; it runs beside a running command.
  std::function<void()> Beside(CommandRunner::Command body);

  void BringCurrentCellIntoView();

  /// Opens the dialog that prints worksheets. At first it offers puzzles as the boxes describe
  /// them.
  void OpenWorksheet(PuzzlesAtHand atHand, const WorksheetForm::Ports& ports, QWidget* window);

  /// Draws the board, in place of it. Does nothing without a board.
  void Draw(const DrawingKind& kind);

  /// Shows the session's mode.
  void ShowMode();

  /// Switches to the mode of a board that was opened or pasted, and gives it the keyboard.
  void ShowLaidOut();
};

}  // namespace numorra
