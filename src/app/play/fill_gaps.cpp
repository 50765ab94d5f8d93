#include "app/play/fill_gaps.h"

#include "app/board/numbers.h"
#include "app/board/position.h"
#include "app/board/totals_check.h"
#include "app/play/lay_out.h"
#include "app/ports/timed_stage.h"
#include "study/line.h"

namespace numorra {
namespace {

constexpr std::int64_t kNodesForAnEntry = 500;
constexpr double kSecondsForEntries = 2;

void Show(Board& board, const Puzzle& solved) {
  const RedrawLock lock(board.grid);
  board.ReadGrid();
  std::size_t cell = 0;
  ForEachCell(board.GridSize, [&](int r, int c) {
    if (board.grid.At(r, c).IsGap()) {
      board.BoardValues(r, c) = static_cast<double>(solved.Cells[cell]);
    }
    ++cell;
  });
  board.ShowBoard();
  board.NewEntry = true;  // what was typed before is not for the player to be congratulated on
  RefreshTotals(board);
}

/// ": column 9 adds up to 135, not 369" of the first line without a gap of which something like it
/// is true.
std::string FullWrongLine(const Puzzle& puzzle) {
  for (const Line line : MagicLines(puzzle.Order)) {
    bool full = true;
    const std::int64_t sum = SumOf(line, puzzle.Order, [&](std::size_t cell) {
      full = full && puzzle.Cells[cell] != 0;
      return puzzle.Cells[cell];
    });
    if (!full || sum == puzzle.Target) continue;
    return ": " + NameOf(line, puzzle.Order) + " adds up to " + std::to_string(sum) + ", not " +
           std::to_string(puzzle.Target);
  }
  return {};
}

std::string WhyNone(const Puzzle& puzzle, const std::vector<bool>& givens, Random& random,
                    BuildStage& stage) {
  const BusyPointer busy(stage);
  const std::vector<Place> entries = EntriesInTheWay(puzzle, givens, random, stage);
  if (entries.empty()) return "nothing can fill these gaps" + FullWrongLine(puzzle);
  std::string why = "nothing can fill these gaps: ";
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::int64_t number = puzzle.Cells[IndexOf(entries[i], puzzle.Order)];
    why += (i > 0 ? ", or " : "") + std::to_string(number) + " in " + NameOf(entries[i]);
  }
  return why + " cannot stay";
}

/// The search for the board, gone on with when the player wants it.
SearchResult SearchLonger(const Puzzle& puzzle, Dialogs& dialogs, BuildStage& stage,
                          Random& random) {
  const auto search = [&](double seconds) {
    const BusyPointer busy(stage);
    return Solve(puzzle, {.Seconds = seconds}, random, stage);
  };
  SearchResult result = search(kFirstSearch);
  const auto* open = std::get_if<NotSettled>(&result);
  if (!open) return result;
  const std::string why = WhyOpen(*open, kFirstSearch);
  if (!dialogs.Ask(why + "\ngo on for " + Decimal(kLongSearch) + " seconds more?")) return result;
  SearchResult second = search(kLongSearch);
  auto* still = std::get_if<NotSettled>(&second);
  if (still && !still->Found) still->Found = open->Found;
  if (still) dialogs.Tell(WhyOpen(*still, kLongSearch));
  return second;
}

}  // namespace

std::vector<Place> EntriesInTheWay(const Puzzle& puzzle, const std::vector<bool>& givens,
                                   Random& random, BuildStage& stage) {
  constexpr std::size_t kMostNamed = 3;
  std::vector<Place> entries;
  Puzzle without = puzzle;
  TimedStage timed(stage);
  for (std::size_t cell = 0; cell < puzzle.Cells.size() && entries.size() < kMostNamed; ++cell) {
    if (puzzle.Cells[cell] == 0 || (!givens.empty() && givens[cell])) continue;
    if (timed.SecondsWorked() > kSecondsForEntries) break;
    without.Cells[cell] = 0;
    const SearchResult result = Solve(without, {.Nodes = kNodesForAnEntry}, random, timed);
    const auto* open = std::get_if<NotSettled>(&result);
    const bool possible =
        open ? open->Found.has_value() : !std::holds_alternative<NoSolution>(result);
    if (possible) entries.push_back(puzzle.PlaceOf(cell));
    without.Cells[cell] = puzzle.Cells[cell];
  }
  return entries;
}

void FillGaps(Board& board, bool limitToNine, Dialogs& dialogs, BuildStage& stage, Random& random) {
  if (!board.HasGaps()) {
    dialogs.Tell("the board has no gaps to fill");
    return;
  }
  const StoredSquare stored = StoredSquareOf(board);
  const auto read = PuzzleOf(stored, limitToNine && board.Asked == Rules::Positive);
  if (const auto* against = std::get_if<AgainstRules>(&read)) {
    dialogs.Tell("nothing can fill these gaps: " + against->Why);
    return;
  }
  const auto& puzzle = std::get<Puzzle>(read);
  random.Reseed();
  const SearchResult result = SearchLonger(puzzle, dialogs, stage, random);
  if (const auto* one = std::get_if<OneSolution>(&result)) {
    Show(board, one->Solved);
  } else if (const auto* several = std::get_if<SeveralSolutions>(&result)) {
    Show(board, several->First);
    dialogs.Tell("this is one of several ways to fill the gaps");
  } else if (const auto* open = std::get_if<NotSettled>(&result)) {
    if (open->Found) Show(board, *open->Found);
  } else {
    dialogs.Tell(WhyNone(puzzle, stored.Givens, random, stage));
  }
}

void EmptyBoard(Board& board) {
  Position position = PositionOf(board);
  for (std::size_t cell = 0; cell < position.Texts.size(); ++cell) {
    if (position.Givens.empty() || !position.Givens[cell]) position.Texts[cell].clear();
  }
  position.Checked = position.Judged = true;
  position.Typing = position.WinTold = false;
  Restore(board, position);
}

}  // namespace numorra
