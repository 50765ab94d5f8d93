#include "app/play/fill_gaps.h"

#include "app/board/line.h"
#include "app/board/numbers.h"
#include "app/board/position.h"
#include "app/board/totals_check.h"
#include "app/play/lay_out.h"
#include "app/ports/timed_yielding.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr std::int64_t kNodesForAnEntry = 500;
constexpr double kSecondsForEntries = 2;

void Show(Board& board, const Puzzle& solved) {
  const RedrawLock lock(board.grid);
  board.ReadGrid();
  ForEachCell(board.GridSize, [&](int r, int c) {
    if (board.grid.At(r, c).IsGap()) {
      board.BoardValues(r, c) = static_cast<double>(solved.Cells[Place{r, c}]);
    }
  });
  board.ShowBoard();
  board.NewEntry = true;  // no congratulation for what was typed before
  RefreshTotals(board);
}

std::string WhyNone(const Puzzle& puzzle, const Square<bool>& givens, Random& random,
                    WorkStage& stage) {
  const BusyPointer busy(stage);
  const std::vector<Place> entries = EntriesInTheWay(puzzle, givens, random, stage);
  if (entries.empty()) return NothingCanFill(FullWrongLine(puzzle));
  std::string names;
  for (const Place place : entries) {
    const std::string entry = Say("%1 in %2", puzzle.Cells[place], NameOf(place));
    names = names.empty() ? entry : Say("%1, or %2", names, entry);
  }
  // Translators: an entry or several: "7 in row 1, column 2, or 8 in row 3, column 1 cannot stay".
  return NothingCanFill(Say("%1 cannot stay", names));
}

/// Searches, and searches longer if the player agrees.
SearchResult SearchLonger(const Puzzle& puzzle, Dialogs& dialogs, WorkStage& stage,
                          Random& random) {
  const auto search = [&](double seconds) {
    const BusyPointer busy(stage);
    return Solve(puzzle, {.Seconds = seconds}, random, stage);
  };
  SearchResult result = search(kFirstSearch);
  const auto* open = std::get_if<NotSettled>(&result);
  if (!open) return result;
  const std::string why = WhyOpen(*open, kFirstSearch);
  const std::string question = Say("search for %1 more seconds?", Written(kLongSearch));
  if (!dialogs.Ask(why + "\n" + question)) return result;
  SearchResult second = search(kLongSearch);
  auto* still = std::get_if<NotSettled>(&second);
  if (still && !still->Found) still->Found = open->Found;
  if (still) dialogs.Tell(WhyOpen(*still, kLongSearch));
  return second;
}

}  // namespace

std::string NothingCanFill(const std::string& why) {
  return why.empty() ? Say("nothing can fill these gaps")
                     : Say("nothing can fill these gaps: %1", why);
}

std::string FullWrongLine(const Puzzle& puzzle) {
  for (const Line line : MagicLines(puzzle.Order())) {
    bool full = true;
    const std::int64_t sum = SumOf(line, puzzle.Order(), [&](int cell) {
      full = full && puzzle.Cells[cell] != 0;
      return puzzle.Cells[cell];
    });
    if (!full || sum == puzzle.Target) continue;
    return Say("%1 adds up to %2, not %3", NameOf(line, puzzle.Order()), sum, puzzle.Target);
  }
  return {};
}

std::vector<Place> EntriesInTheWay(const Puzzle& puzzle, const Square<bool>& givens, Random& random,
                                   Yielding& yielding) {
  constexpr std::size_t kMostNamed = 3;
  std::vector<Place> entries;
  Puzzle without = puzzle;
  TimedYielding timed(yielding);
  for (int cell = 0; cell < puzzle.Cells.Size() && entries.size() < kMostNamed; ++cell) {
    if (puzzle.Cells[cell] == 0 || (!givens.IsEmpty() && givens[cell])) continue;
    if (timed.SecondsWorked() > kSecondsForEntries) break;
    without.Cells[cell] = 0;
    const SearchResult result = Solve(without, {.Nodes = kNodesForAnEntry}, random, timed);
    const auto* open = std::get_if<NotSettled>(&result);
    const bool possible =
        open ? open->Found.has_value() : !std::holds_alternative<NoSolution>(result);
    if (possible) entries.push_back(puzzle.Cells.PlaceOf(cell));
    without.Cells[cell] = puzzle.Cells[cell];
  }
  return entries;
}

void FillGaps(const CommandContext& context, bool limitToNine, WorkStage& stage, LineKind kind) {
  Board& board = context.TheBoard;
  Dialogs& dialogs = context.TheDialogs;
  Random& random = context.TheRandom;
  if (!board.HasGaps()) {
    dialogs.Tell(Say("the board has no gaps to fill"));
    return;
  }
  const StoredSquare stored = StoredSquareOf(board);
  auto read = PuzzleOf(stored, limitToNine && board.Asked == Rules::Positive);
  if (const auto* against = std::get_if<AgainstRules>(&read)) {
    dialogs.Tell(NothingCanFill(against->Why));
    return;
  }
  auto& puzzle = std::get<Puzzle>(read);
  puzzle.Kind = kind;
  random.Reseed();
  const SearchResult result = SearchLonger(puzzle, dialogs, stage, random);
  if (const auto* one = std::get_if<OneSolution>(&result)) {
    Show(board, one->Solved);
  } else if (const auto* several = std::get_if<SeveralSolutions>(&result)) {
    Show(board, several->First);
    dialogs.Tell(Say("this is one of several solutions"));
  } else if (const auto* open = std::get_if<NotSettled>(&result)) {
    if (open->Found) Show(board, *open->Found);
  } else if (const std::string& why = std::get<NoSolution>(result).Why; !why.empty()) {
    dialogs.Tell(NothingCanFill(why));
  } else {
    dialogs.Tell(WhyNone(puzzle, stored.Givens, random, stage));
  }
}

void EmptyBoard(Board& board) {
  Position position = PositionOf(board);
  for (int cell = 0; cell < position.Texts.Size(); ++cell) {
    if (position.Givens.IsEmpty() || !position.Givens[cell]) position.Texts[cell].clear();
  }
  position.Noted = {};
  position.Checked = position.Judged = true;
  position.Typing = position.WinTold = false;
  Restore(board, position);
}

}  // namespace numorra
