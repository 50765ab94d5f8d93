#pragma once

#include <string>

#include "puzzle/code.h"
#include "puzzle/deduction.h"
#include "puzzle/making.h"
#include "puzzle/rating.h"
#include "puzzle/search.h"
#include "support/boards.h"
#include "support/chain_judge.h"
#include "support/slow_checker.h"
#include "support/stand_ins.h"

namespace numorra {

/// Counts the ways to fill the gaps, up to two: number by number in reading order, checking a line
/// when its last cell is filled. Slow, complete, and sharing no code with the product; for boards
/// up to order 5 with some numbers.
class SlowCounter {
 public:
  explicit SlowCounter(const Puzzle& puzzle)
      : n_(puzzle.Order()),
        total_(puzzle.Target),
        normal_(puzzle.Asked == Rules::Normal),
        most_(normal_ ? n_ * n_ : puzzle.Most()),
        cells_(puzzle.Cells.begin(), puzzle.Cells.end()),
        used_(static_cast<std::size_t>(most_) + 1) {
    for (const std::int64_t cell : cells_) {
      if (cell != 0) used_[static_cast<std::size_t>(cell)] = normal_;
    }
  }

  int Count() {
    for (int cell = 0; cell < n_ * n_; ++cell) {
      if (!Possible(cell / n_, cell % n_)) return 0;
    }
    Fill(0);
    return found_;
  }

 private:
  std::int64_t& At(int r, int c) { return cells_[static_cast<std::size_t>(r * n_ + c)]; }

  /// Sums and gaps of the lines through a cell: none may exceed the total, or be full and wrong.
  bool Possible(int r, int c) {
    const auto fits = [&](auto cellAt) {
      std::int64_t sum = 0;
      int gaps = 0;
      for (int i = 0; i < n_; ++i) {
        const std::int64_t cell = cellAt(i);
        sum += cell;
        gaps += cell == 0 ? 1 : 0;
      }
      return gaps == 0 ? sum == total_ : sum + gaps <= total_ && sum + gaps * most_ >= total_;
    };
    return fits([&](int i) { return At(r, i); }) && fits([&](int i) { return At(i, c); }) &&
           (r != c || fits([&](int i) { return At(i, i); })) &&
           (r + c != n_ - 1 || fits([&](int i) { return At(i, n_ - 1 - i); }));
  }

  void Fill(int cell) {
    while (cell < n_ * n_ && cells_[static_cast<std::size_t>(cell)] != 0)
      ++cell;
    if (cell == n_ * n_) {
      ++found_;
      return;
    }
    for (std::int64_t number = 1; number <= most_ && found_ < 2; ++number) {
      if (normal_ && used_[static_cast<std::size_t>(number)]) continue;
      used_[static_cast<std::size_t>(number)] = normal_;
      At(cell / n_, cell % n_) = number;
      if (Possible(cell / n_, cell % n_)) Fill(cell + 1);
      At(cell / n_, cell % n_) = 0;
      used_[static_cast<std::size_t>(number)] = false;
    }
  }

  int n_;
  std::int64_t total_;
  bool normal_;
  std::int64_t most_;
  std::vector<std::int64_t> cells_;
  std::vector<bool> used_;
  int found_ = 0;
};

/// What is wrong with a puzzle; empty if it has one solution, every step of every hint follows,
/// its grade is what its hints need, and its code reads back.
inline std::string WhyUnfair(const MadePuzzle& made) {
  const int n = made.Clues.Order();
  SeededRandom random(1);
  SilentStage stage;
  for (int cell = 0; cell < made.Solution.Cells.Size(); ++cell) {
    const std::int64_t clue = made.Clues.Cells[cell];
    if (clue != 0 && clue != made.Solution.Cells[cell]) return "a clue that is not the solution's";
  }
  std::string why =
      slow::WhyNotMagic(RowsOf(made.Solution.Cells), static_cast<double>(made.Clues.Target));
  if (!why.empty()) return why;
  const bool normal = made.Clues.Asked == Rules::Normal;
  if (n <= 4 && normal && SlowCounter(made.Clues).Count() != 1) return "not one solution";
  const SearchResult result = Solve(made.Clues, {.Nodes = 100'000}, random, stage);
  const auto* one = std::get_if<OneSolution>(&result);
  if (!one || one->Solved.Cells != made.Solution.Cells) return "not this solution alone";
  const int clues = n * n - made.Clues.Gaps();
  const int least = n == 3 ? 3 : n == 4 ? 8 : n * n - 2 * n - 1;
  if (made.Needed == Grade::Easy && normal && clues < least) return "too few clues to be easy";
  auto hardest = Grade::Easy;
  Puzzle board = made.Clues;
  while (const auto next = NextDeduction(board, made.Needed, stage)) {
    why = ChainJudge(board).WhyWrong(*next, made.Solution.Cells[next->Cell]);
    if (!why.empty()) return "a hint with " + why;
    hardest = std::max(hardest, next->Needed);
    board.Cells[next->Cell] = next->Number;
  }
  const bool extreme = made.Needed == Grade::Extreme;
  if ((board.Gaps() > 0) != extreme || (!extreme && hardest != made.Needed)) {
    return "hints that are not of its grade";
  }
  const Rating rating = RatingOf(made.Clues, stage);
  if (rating.Needed != made.Needed || rating.Steps < 1) return "a rating of another grade";
  const auto back = PuzzleOfCode(CodeOf(made.Clues));
  const auto* read = std::get_if<Puzzle>(&back);
  return read && read->Cells == made.Clues.Cells ? "" : "a code that does not read back";
}

}  // namespace numorra
