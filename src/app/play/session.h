#pragma once

#include <optional>
#include <string>

#include "app/board/board.h"
#include "app/board/random.h"
#include "app/play/board_watch.h"
#include "app/play/cell_entry.h"
#include "app/play/command_history.h"
#include "app/play/edit_commands.h"
#include "app/play/hints.h"
#include "app/play/undo_history.h"
#include "generate/solve_command.h"
#include "generate/top_row_command.h"
#include "puzzle/fresh_square.h"
#include "puzzle/making.h"

namespace numorra {

struct FamousSquare;
struct SpecialKind;

/// What a session asks of whoever shows it: a window, or a test.
struct SessionPorts {
  SquareBoxes& Boxes;
  BuildOptions& Options;
  Dialogs& TheDialogs;
  BuildStage& Building;  ///< where builds are shown
  WorkStage& Searching;  ///< where searches are
};

/// A board in play and all that belongs to playing it: what has been done to it, the player's keys,
/// the commands that build, edit, search and study, and random numbers. It knows no window; it is
/// made before one and ends after it.
///
/// Every command runs between BeginCommand and EndCommand, which tell the watch's listeners what it
/// was called and what it has changed; undo is the first of them.
class Session {
 public:
  /// `clock`: what random numbers start afresh from.
  explicit Session(Clock& clock);

  /// Before any command, and after the last one: what was connected or listens then is forgotten.
  void Connect(const SessionPorts& ports);
  void Disconnect();

  void BeginCommand() { Watch.Begin(); }
  void EndCommand(const std::string& name) { Watch.End(name); }

  Board TheBoard;
  BoardWatch Watch{TheBoard};
  UndoHistory History;
  CommandHistory LastCommand;
  ClockSeededRandom TheRandom;

  CellEntry& Entry() { return commands_->Entry; }
  EditCommands& Edits() { return commands_->Edits; }
  SolveCommand& Solve() { return commands_->Solve; }

  /// What the boxes say before the first proposal replaces it is what a session starts from.
  void Start();

  /// In the Normal mode the sum belongs to the size.
  void SetMode(Mode mode);
  void FollowSize();

  void ProposeSquare();
  void OfferCorners(ListBox& choice);
  void BuildManually();

  /// A 4 x 4 square from its top row, in the Variable mode; false where none was built.
  bool BuildFromTopRow();

  /// Counts and colours whatever board is shown, without a word: from then on it can be played.
  void CheckTheTotals();

  /// Shows a square as LayOut does; a text that is none is told, with nothing changed.
  void LayOut(const StoredSquare& square);
  bool Paste(const std::string& text);

  void Vary();
  void Complement();
  void BringToStandardForm();
  bool LayOutSpecial(const SpecialKind& kind);
  void LayOutFamous(const FamousSquare& famous);

  Remark Hint();
  Remark CheckEntries();
  Remark EnterPuzzle();
  void FillGaps();
  void EmptyBoard();

  /// The puzzle that stands on the board: its givens alone where it has any. Boards of one or two
  /// rows, which Auto builds of their numbers, are none.
  std::optional<Puzzle> PuzzleOnBoard() const;

  /// The same with its solution, where it has a single one that is found at once.
  std::optional<MadePuzzle> SolvedPuzzleOnBoard();

  /// Its code; the player is told where it has none.
  std::optional<std::string> PuzzleCode() const;

  /// What fresh squares are to be like, by the boxes; nothing, with a message, where no square has
  /// such a size.
  std::optional<SquareWish> WishForFreshSquares() const;

  /// The board as a square that numbers can be hidden of.
  PuzzleSource SquareToHide() const;

  /// Lays a puzzle out to be solved.
  void Take(const MadePuzzle& made);

 private:
  /// What works on the ports.
  struct Commands {
    Commands(Session& session, const SessionPorts& ports);

    CellEntry Entry;
    EditCommands Edits;
    numorra::Hints Hints;
    SolveCommand Solve;
    TopRowCommand TopRow;
  };

  ListBoy List2;
  ListBoy List3;
  CommandContext Context() { return {TheBoard, ports_->Boxes, ports_->TheDialogs, TheRandom}; }

  std::optional<SessionPorts> ports_;
  std::optional<Commands> commands_;
};

}  // namespace numorra
