#include "puzzle/making.h"

#include <algorithm>
#include <vector>

#include "puzzle/rating.h"
#include "puzzle/search.h"
#include "puzzle/trials.h"
#include "words/say.h"

namespace numorra {
namespace {

int CluesOf(const Puzzle& puzzle) {
  return puzzle.Cells.Size() - puzzle.Gaps();
}

class Digger {
 public:
  Digger(const Puzzle& square, const PuzzleWish& wish, Random& random, Yielding& yielding)
      : square_(square), wish_(wish), random_(random), yielding_(yielding) {}

  Puzzle Dig() {
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
    return puzzle;
  }

  /// Returns numbers to the puzzle until it has `clues` clues; false if symmetry skips that number.
  bool AddClues(Puzzle& puzzle, int clues) {
    const Grade needed = GradeOf(puzzle, yielding_);
    for (const bool keepGrade : {true, false}) {
      for (const std::vector<int>& cells : ShuffledCells()) {
        const int have = CluesOf(puzzle);
        if (have == clues) return true;
        if (have + static_cast<int>(cells.size()) > clues || puzzle.Cells[cells[0]] != 0) continue;
        yielding_.Yield();
        Puzzle more = puzzle;
        for (const int cell : cells)
          more.Cells[cell] = square_.Cells[cell];
        if (!keepGrade || GradeOf(more, yielding_) == needed) puzzle = std::move(more);
      }
    }
    return CluesOf(puzzle) == clues;
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

bool PuzzleMaker::IsDone() const {
  if (!whyNever_.empty()) return true;
  return best_ && rating_.Needed == wish_.Wanted && (StepsOff(rating_) == 0 || moreChances_ == 0);
}

bool PuzzleMaker::Try(const Puzzle& square, int orders) {
  const int cells = square.Cells.Size();
  if (wish_.ClueCount && (*wish_.ClueCount < 0 || *wish_.ClueCount >= cells)) {
    whyNever_ = SayCounted("a puzzle of this size has fewer than %1 clue",
                           "a puzzle of this size has fewer than %1 clues", cells);
  }
  Digger digger(square, wish_, random_, yielding_);
  ++squares_;
  for (; orders > 0 && !IsDone(); --orders) {
    ++tries_;
    Puzzle puzzle = digger.Dig();
    fewest_ = std::min(fewest_, CluesOf(puzzle));
    if (wish_.ClueCount && CluesOf(puzzle) > *wish_.ClueCount) continue;
    if (!wish_.ClueCount || digger.AddClues(puzzle, *wish_.ClueCount)) {
      Consider({std::move(puzzle), square});
    } else {
      passedBy_ = true;
    }
  }
  return IsDone();
}

void PuzzleMaker::Consider(MadePuzzle made) {
  const Rating rating = RatingOf(made.Clues, yielding_);
  made.Needed = rating.Needed;
  if (best_ && rating_.Needed == wish_.Wanted) --moreChances_;
  const bool better = rating.Needed == rating_.Needed ? StepsOff(rating) < StepsOff(rating_)
                                                      : rating.Needed > rating_.Needed;
  if (best_ && !better) return;
  best_ = std::move(made);
  rating_ = rating;
}

std::variant<MadePuzzle, CannotMake> PuzzleMaker::Result() const {
  if (best_) return *best_;
  if (!whyNever_.empty()) return CannotMake{whyNever_};
  if (passedBy_) {
    return CannotMake{Say("symmetric gaps cannot leave %1 clues here: try one more or one less",
                          *wish_.ClueCount)};
  }
  const std::string grade = Say(NameOf(wish_.Wanted));
  const char* const why =
      squares_ == 1
          // Translators: %1 is a count, %2 the name of a grade, such as "hard", %3 a count.
          ? Mark("in %1 tries, no puzzle of grade %2 from this square had fewer than %3 clues")
          // Translators: %1 is a count, %2 the name of a grade, such as "hard", %3 a count.
          : Mark("in %1 squares, no puzzle of grade %2 had fewer than %3 clues");
  return CannotMake{Say(why, squares_ == 1 ? tries_ : squares_, grade, fewest_)};
}

std::variant<MadePuzzle, CannotMake> MakePuzzle(const Puzzle& square, const PuzzleWish& wish,
                                                Random& random, Yielding& yielding) {
  constexpr int kOrders = 20;
  PuzzleMaker maker(wish, random, yielding);
  maker.Try(square, kOrders);
  return maker.Result();
}

}  // namespace numorra
