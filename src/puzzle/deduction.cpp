#include "puzzle/deduction.h"

#include <algorithm>

#include "puzzle/chain.h"
#include "puzzle/step_rules.h"
#include "puzzle/trial_chain.h"

namespace numorra {
namespace {

/// The last gap of a line.
std::optional<std::vector<Step>> LastGapOf(const Candidates& board) {
  for (int line = 0; line < board.Map().Lines(); ++line) {
    const std::vector<int> gaps = board.GapsOf(line);
    if (gaps.size() != 1) continue;
    auto step = Derive(board, {StepRule::LastGap, line, gaps[0]});
    if (step && !step->IsContradiction()) return std::vector{*step};
  }
  return std::nullopt;
}

Deduction EndedBy(std::vector<Step> steps, Grade grade) {
  const Step& last = steps.back();
  return {last.Cell, last.Left.Low, grade, std::move(steps)};
}

}  // namespace

std::optional<Deduction> NextDeduction(const Puzzle& puzzle, Grade most, Yielding& yielding) {
  const Candidates board(puzzle);
  if (board.Solved()) return std::nullopt;
  if (auto steps = LastGapOf(board)) return EndedBy(std::move(*steps), Grade::Easy);
  for (const Grade grade : {Grade::Medium, Grade::Hard}) {
    if (grade > most) return std::nullopt;
    if (auto steps = ChainFinder(board, grade, yielding).ToNumber()) {
      return EndedBy(std::move(*steps), grade);
    }
  }
  if (most < Grade::Expert) return std::nullopt;
  auto steps = TrialChainFinder(puzzle, yielding).ToNumber();
  return steps ? std::optional(EndedBy(std::move(*steps), Grade::Expert)) : std::nullopt;
}

Deduction SearchedDeduction(int cell, std::int64_t number) {
  Step step{{StepRule::Search, -1, cell, number}};
  step.Left = {number, number, {number}};
  return {cell, number, Grade::Extreme, {step}};
}

Deduction NextNumber(const Puzzle& puzzle, const Puzzle& solved, Yielding& yielding) {
  if (auto found = NextDeduction(puzzle, Grade::Expert, yielding)) return *found;
  const auto gap = std::find(puzzle.Cells.begin(), puzzle.Cells.end(), 0);
  const auto cell = static_cast<int>(gap - puzzle.Cells.begin());
  return SearchedDeduction(cell, solved.Cells[cell]);
}

std::vector<Deduction> WayToSolve(Puzzle puzzle, const Puzzle& solved, Yielding& yielding) {
  std::vector<Deduction> way;
  while (puzzle.Gaps() > 0) {
    way.push_back(NextNumber(puzzle, solved, yielding));
    puzzle.Cells[way.back().Cell] = way.back().Number;
  }
  return way;
}

}  // namespace numorra
