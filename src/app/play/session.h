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
#include "app/play/note_entry.h"
#include "app/play/undo_history.h"
#include "generate/solve_command.h"
#include "generate/top_row_command.h"
#include "puzzle/fresh_square.h"
#include "puzzle/making.h"

namespace numorra {

struct FamousSquare;
struct Relative;
struct SpecialKind;

/// What a session needs from whatever shows it: a window, or a test.
struct SessionPorts {
  SquareBoxes& Boxes;
  BuildOptions& Options;
  Dialogs& TheDialogs;
  BuildStage& Building;  ///< shows builds
  WorkStage& Searching;  ///< shows searches
};

/// A board in play with everything needed to play it: its history, the player's keys, the commands
/// that build, edit, search and study, and random numbers. It knows no window; it is created before
/// one and outlives it.
///
/// Every command runs between BeginCommand and EndCommand, which tell the watch's listeners its
/// name and its changes; undo is the first listener, and what the grid shows besides the numbers is
/// updated next.
class Session {
 public:
  /// `clock`: seeds the random numbers.
  explicit Session(Clock& clock);

  /// Connect before the first command and disconnect after the last; disconnecting drops all
  /// listeners.
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
  NoteEntry& Noting() { return commands_->Noting; }
  SolveCommand& Solve() { return commands_->Solve; }

  /// Initializes the session from the boxes, before the first proposal replaces their values.
  void Start();

  /// In the Normal mode the size determines the sum.
  void SetMode(Mode mode);
  void FollowSize();

  void ProposeSquare();
  void OfferCorners(ListBox& choice);
  void BuildManually();

  /// A 4 x 4 square from its top row, in the Variable mode; false if none was built.
  bool BuildFromTopRow();

  /// Counts and colours the totals of the board without a message; after that it can be played.
  void CheckTheTotals();

  /// Whether totals say nothing before the board is full.
  void SetQuietTotals(bool quiet);

  /// Shows a square with LayOut; tells the player why a text is not a square, and then changes
  /// nothing.
  void LayOut(const StoredSquare& square);
  bool Paste(const std::string& text);

  void Vary();
  void Complement();
  void BringToStandardForm();
  /// Shows a relative that keeps the board's kind; which ones there are.
  void ShowRelative(const Relative& relative);
  std::vector<const Relative*> RelativesOfBoard() const;
  bool LayOutSpecial(const SpecialKind& kind);
  bool LayOutConstruction(const Construction& construction);
  void LayOutFamous(const FamousSquare& famous);

  Remark Hint();
  Remark CheckEntries();
  Remark EnterPuzzle();
  void FillGaps(LineKind kind = LineKind::Magic);
  Remark FillNotes();
  void ClearNotes();
  Remark BackToLastRight();
  void EmptyBoard();

  /// The puzzle on the board: only its givens, if it has any. Boards of one or two rows, which Auto
  /// builds from their numbers, are not puzzles.
  std::optional<Puzzle> PuzzleOnBoard() const;

  /// The same with its solution, if it has exactly one that is found quickly.
  std::optional<MadePuzzle> SolvedPuzzleOnBoard();

  /// The puzzle's code; tells the player if it has none.
  std::optional<std::string> PuzzleCode() const;

  /// What fresh squares should be like, from the boxes; nothing, with a message, if no square has
  /// that size.
  std::optional<SquareWish> WishForFreshSquares() const;

  /// The board as a square whose numbers can be hidden.
  PuzzleSource SquareToHide() const;

  /// Lays a puzzle out to be solved.
  void Take(const MadePuzzle& made);

 private:
  /// The commands that use the ports.
  struct Commands {
    Commands(Session& session, const SessionPorts& ports);

    CellEntry Entry;
    EditCommands Edits;
    NoteEntry Noting;
    numorra::Hints Hints;
    SolveCommand Solve;
    TopRowCommand TopRow;
  };

  void Follow(const CommandResult& result);

  ListBoy List2;
  ListBoy List3;
  CommandContext Context() { return {TheBoard, ports_->Boxes, ports_->TheDialogs, TheRandom}; }

  std::optional<SessionPorts> ports_;
  std::optional<Commands> commands_;
};

}  // namespace numorra
