#include "puzzle/making.h"

#include <algorithm>
#include <vector>

#include "puzzle/rating.h"
#include "puzzle/search.h"
#include "puzzle/trials.h"

namespace numorra {
namespace {

constexpr int kDiggings = 20;  // attempts to reach a grade or a number of clues

class Digger {
 public:
  Digger(const Puzzle& square, const PuzzleWish& wish, Random& random, Yielding& yielding)
      : square_(square), wish_(wish), random_(random), yielding_(yielding) {}

  MadePuzzle Dig() {
    Puzzle puzzle = square_;
    const Grade rules = std::min(wish_.Wanted, Grade::Hard);
    const auto solvedByRules = [&](const Puzzle& dug, const auto&) {
      return RulesSolve(dug, rules);
    };
    Remove(puzzle, solvedByRules);
    if (wish_.Wanted == Grade::Expert) {
      Remove(puzzle,
             [&](const Puzzle& dug, const auto& cells) { return TrialsReturn(dug, cells); });
    } else if (wish_.Wanted == Grade::Extreme) {
      Remove(puzzle, [&](const Puzzle& dug, const auto&) {
        return std::holds_alternative<OneSolution>(
            Solve(dug, {.Nodes = kExtremeNodes}, random_, yielding_));
      });
    }
    return {puzzle, square_, GradeOf(puzzle, yielding_)};
  }

  /// Returns numbers to the puzzle until it has `clues` clues; false if symmetry skips that number.
  bool AddClues(MadePuzzle& made, int clues) {
    for (const bool keepGrade : {true, false}) {
      for (const std::vector<int>& cells : ShuffledCells()) {
        const int have = square_.Cells.Size() - made.Clues.Gaps();
        if (have == clues) return true;
        if (have + static_cast<int>(cells.size()) > clues) continue;
        if (made.Clues.Cells[cells[0]] != 0) continue;
        yielding_.Yield();
        Puzzle more = made.Clues;
        for (const int cell : cells)
          more.Cells[cell] = square_.Cells[cell];
        const Grade grade = GradeOf(more, yielding_);
        if (keepGrade && grade != made.Needed) continue;
        made.Clues = std::move(more);
        made.Needed = grade;
      }
    }
    return square_.Cells.Size() - made.Clues.Gaps() == clues;
  }

 private:
  /// The cells that are removed and returned together, in random order.
  std::vector<std::vector<int>> ShuffledCells() {
    const int cells = square_.Cells.Size();
    std::vector<std::vector<int>> together;
    for (int cell = 0; cell < cells; ++cell) {
      const int opposite = cells - 1 - cell;
      if (!wish_.Symmetric || cell == opposite) {
        together.push_back({cell});
      } else if (cell < opposite) {
        together.push_back({cell, opposite});
      }
    }
    Shuffle(std::span(together), random_);
    return together;
  }

  /// Whether hard rules and trials of the removed cells alone find their numbers again. The puzzle
  /// then stays solvable: it was so before they were removed.
  bool TrialsReturn(const Puzzle& dug, const std::vector<int>& cells) {
    Candidates board(dug);
    Trials trials(board, kMostTrials, yielding_);
    return trials.Run(cells) && std::all_of(cells.begin(), cells.end(),
                                            [&](int cell) { return board.Value(cell) != 0; });
  }

  /// Removes numbers as long as the puzzle stays solvable.
  template <class IsSolvable>
  void Remove(Puzzle& puzzle, IsSolvable isSolvable) {
    for (const std::vector<int>& cells : ShuffledCells()) {
      if (puzzle.Cells[cells[0]] == 0) continue;
      yielding_.Yield();
      for (const int cell : cells)
        puzzle.Cells[cell] = 0;
      if (isSolvable(puzzle, cells)) continue;
      for (const int cell : cells)
        puzzle.Cells[cell] = square_.Cells[cell];
    }
  }

  const Puzzle& square_;
  const PuzzleWish& wish_;
  Random& random_;
  Yielding& yielding_;
};

}  // namespace

std::variant<MadePuzzle, CannotMake> MakePuzzle(const Puzzle& square, const PuzzleWish& wish,
                                                Random& random, Yielding& yielding) {
  const int cells = square.Cells.Size();
  if (wish.ClueCount && (*wish.ClueCount < 0 || *wish.ClueCount >= cells)) {
    return CannotMake{"a puzzle of this size has fewer than " + std::to_string(cells) + " clues"};
  }
  Digger digger(square, wish, random, yielding);
  std::optional<MadePuzzle> best;
  int fewest = cells;
  bool passedBy = false;
  for (int digging = 0; digging < kDiggings; ++digging) {
    MadePuzzle made = digger.Dig();
    const int clues = cells - made.Clues.Gaps();
    fewest = std::min(fewest, clues);
    if (wish.ClueCount && clues > *wish.ClueCount) continue;
    if (wish.ClueCount && !digger.AddClues(made, *wish.ClueCount)) {
      passedBy = true;
      continue;
    }
    if (!best || made.Needed > best->Needed) best = std::move(made);
    if (best->Needed == wish.Wanted) break;
  }
  if (best) return *best;
  if (passedBy) {
    return CannotMake{"symmetric gaps cannot leave " + std::to_string(*wish.ClueCount) +
                      " clues here: try one more or one less"};
  }
  return CannotMake{"a puzzle of grade " + std::string(NameOf(wish.Wanted)) +
                    " from this square needs " + std::to_string(fewest) + " clues or more"};
}

}  // namespace numorra
