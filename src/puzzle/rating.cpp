#include "puzzle/rating.h"

#include <algorithm>
#include <vector>

#include "puzzle/trials.h"

namespace numorra {
namespace {

/// Whether filling the last gap of a line repeatedly fills the board. For puzzles that have a
/// solution, so that each of these numbers fits.
bool EasyRulesSolve(const Puzzle& puzzle) {
  const LineMap& map = LineMap::Of(puzzle.Order(), puzzle.Kind);
  const auto at = [](int index) { return static_cast<std::size_t>(index); };
  std::vector<int> open(at(map.Lines()));
  std::vector<char> isGap(at(puzzle.Cells.Size()));
  int gaps = 0;
  for (int cell = 0; cell < puzzle.Cells.Size(); ++cell) {
    if (puzzle.Cells[cell] != 0) continue;
    isGap[at(cell)] = 1;
    ++gaps;
    for (const int line : map.LinesOf(cell))
      ++open[at(line)];
  }
  std::vector<int> waiting;
  for (int line = 0; line < map.Lines(); ++line) {
    if (open[at(line)] == 1) waiting.push_back(line);
  }
  while (!waiting.empty()) {
    const int last = waiting.back();
    waiting.pop_back();
    if (open[at(last)] != 1) continue;
    for (const int cell : map.CellsOf(last)) {
      if (isGap[at(cell)] == 0) continue;
      isGap[at(cell)] = 0;
      --gaps;
      for (const int line : map.LinesOf(cell)) {
        if (--open[at(line)] == 1) waiting.push_back(line);
      }
      break;
    }
  }
  return gaps == 0;
}

/// How often a rule of the grade, medium or hard, changes the board; the easier rules go on after
/// each time.
int StepsOf(const Puzzle& puzzle, Grade grade) {
  const auto easier = static_cast<Grade>(static_cast<int>(grade) - 1);
  Candidates board(puzzle);
  int steps = 0;
  while (board.Propagate(easier) && board.ApplyOnce(grade))
    ++steps;
  return steps;
}

/// What trials make of a puzzle that the hard rules do not solve.
Rating RatingByTrials(const Puzzle& puzzle, Yielding& yielding) {
  Candidates board(puzzle);
  Trials trials(board, kMostTrials, yielding);
  if (trials.Run() && board.Solved()) return {Grade::Expert, trials.Refuted()};
  return {Grade::Extreme, board.Gaps()};
}

}  // namespace

bool RulesSolve(const Puzzle& puzzle, Grade grade) {
  if (grade == Grade::Easy) return EasyRulesSolve(puzzle);
  Candidates board(puzzle);
  return board.Propagate(grade) && board.Solved();
}

int StepsOff(const Rating& rating) {
  constexpr int kFewest = 3;
  constexpr int kMost = 10;
  if (rating.Needed != Grade::Hard && rating.Needed != Grade::Expert) return 0;
  return std::max({0, kFewest - rating.Steps, rating.Steps - kMost});
}

Grade GradeOf(const Puzzle& puzzle, Yielding& yielding) {
  for (const Grade grade : {Grade::Easy, Grade::Medium, Grade::Hard}) {
    if (RulesSolve(puzzle, grade)) return grade;
  }
  return RatingByTrials(puzzle, yielding).Needed;
}

Rating RatingOf(const Puzzle& puzzle, Yielding& yielding) {
  if (EasyRulesSolve(puzzle)) return {Grade::Easy, puzzle.Gaps()};
  for (const Grade grade : {Grade::Medium, Grade::Hard}) {
    if (RulesSolve(puzzle, grade)) return {grade, StepsOf(puzzle, grade)};
  }
  return RatingByTrials(puzzle, yielding);
}

}  // namespace numorra
