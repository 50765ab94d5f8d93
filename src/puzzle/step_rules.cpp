#include "puzzle/step_rules.h"

#include <algorithm>

namespace numorra {
namespace {

Possible OfList(std::vector<std::int64_t> numbers) {
  if (numbers.empty()) return {};
  const std::int64_t low = numbers.front();
  const std::int64_t high = numbers.back();
  return {low, high, std::move(numbers)};
}

/// The candidates of a cell that `stays` keeps; under the positive rules, those between two bounds.
template <class Stays>
Possible Kept(const Candidates& board, int cell, Stays stays) {
  std::vector<std::int64_t> numbers;
  for (std::int64_t number = board.Low(cell); number <= board.High(cell); ++number) {
    if (board.Allows(cell, number) && stays(number)) numbers.push_back(number);
  }
  return OfList(std::move(numbers));
}

Possible Between(const Candidates& board, int cell, std::int64_t low, std::int64_t high) {
  if (board.IsNormal()) {
    return Kept(board, cell, [&](std::int64_t number) { return number >= low && number <= high; });
  }
  const Possible range{std::max(low, board.Low(cell)), std::min(high, board.High(cell))};
  return range.IsNone() ? Possible{} : range;
}

/// The smallest sum of the line's other gaps, or the largest one.
std::int64_t SumOfOthers(const Candidates& board, int line, int cell, bool least) {
  std::vector<std::int64_t> bounds;
  for (const int other : board.GapsOf(line)) {
    if (other != cell) bounds.push_back(least ? board.Low(other) : -board.High(other));
  }
  const std::int64_t sum = LeastSum(std::move(bounds), board.IsNormal());
  return least ? sum : -sum;
}

bool IsGap(const Candidates& board, int cell) {
  return board.Value(cell) == 0;
}

/// The rules of a line; false if the move does not fit its number of gaps.
bool DeriveLine(const Candidates& board, Step& step) {
  const std::vector<int> gaps = board.GapsOf(step.Line);
  step.Gaps = static_cast<int>(gaps.size());
  step.Sum = board.Rest(step.Line);
  step.Total = step.Sum;
  for (const int cell : board.Map().CellsOf(step.Line))
    step.Total += board.Value(cell);
  if (step.By == StepRule::FullLine) {
    step.Sum = step.Total - step.Sum;
    return step.Gaps == 0 && step.Sum != step.Total;
  }
  for (const int gap : gaps) {
    if (gap != step.Cell && board.Count(gap) == 0) return false;  // its own step says so
  }
  if (!IsGap(board, step.Cell)) return false;
  if (step.By == StepRule::LastGap) {
    step.Left = Between(board, step.Cell, step.Sum, step.Sum);
    return step.Gaps == 1;
  }
  if (step.By == StepRule::TwoGaps) {
    if (step.Gaps != 2) return false;
    const int other = gaps[0] == step.Cell ? gaps[1] : gaps[0];
    step.OtherGap = other;
    step.Partner = PossibleIn(board, other);
    step.Left = board.IsNormal() ? Kept(board, step.Cell,
                                        [&](std::int64_t number) {
                                          const std::int64_t rest = step.Sum - number;
                                          return rest != number && board.Allows(other, rest);
                                        })
                                 : Between(board, step.Cell, step.Sum - board.High(other),
                                           step.Sum - board.Low(other));
    return true;
  }
  const bool least = step.By == StepRule::AtMost;
  step.Others = SumOfOthers(board, step.Line, step.Cell, least);
  const std::int64_t bound = step.Sum - step.Others;
  step.Left = least ? Between(board, step.Cell, board.Low(step.Cell), bound)
                    : Between(board, step.Cell, bound, board.High(step.Cell));
  return step.Gaps > 2;
}

/// A number that fits one gap or none.
bool DerivePlace(const Candidates& board, Step& step) {
  step.Cell = -1;
  for (int cell = 0; cell < board.Cells(); ++cell) {
    if (board.Value(cell) == step.Number) return false;
    if (!IsGap(board, cell) || !board.Allows(cell, step.Number)) continue;
    if (step.Cell >= 0) return false;
    step.Cell = cell;
  }
  if (step.Cell >= 0) step.Left = Possible{step.Number, step.Number, {step.Number}};
  return true;
}

/// A gap with one candidate, or none.
bool DeriveCandidate(const Candidates& board, Step& step) {
  step.Left = PossibleIn(board, step.Cell);
  return IsGap(board, step.Cell) && board.Count(step.Cell) < 2;
}

bool DeriveRefuted(const Candidates& board, Step& step) {
  const std::int64_t low = board.Low(step.Cell) + (board.Low(step.Cell) == step.Number ? 1 : 0);
  const std::int64_t high = board.High(step.Cell) - (board.High(step.Cell) == step.Number ? 1 : 0);
  step.Left = board.IsNormal()
                  ? Kept(board, step.Cell, [&](auto number) { return number != step.Number; })
                  : Between(board, step.Cell, low, high);
  return IsGap(board, step.Cell) && board.Allows(step.Cell, step.Number);
}

bool Narrows(const Candidates& board, const Step& step) {
  if (step.Cell < 0 || step.By == StepRule::OneCandidate || step.By == StepRule::LastGap)
    return true;
  const std::int64_t count = step.Left.Count();
  return count < board.Count(step.Cell) || (step.Puts && count == 1);
}

}  // namespace

Possible PossibleIn(const Candidates& board, int cell) {
  if (board.IsNormal()) return Kept(board, cell, [](std::int64_t) { return true; });
  return Between(board, cell, board.Low(cell), board.High(cell));
}

std::optional<Step> Derive(const Candidates& board, const Move& move) {
  Step step{move};
  bool applies = false;
  switch (move.By) {
    case StepRule::LastGap:
    case StepRule::TwoGaps:
    case StepRule::AtLeast:
    case StepRule::AtMost:
    case StepRule::FullLine:
      applies = DeriveLine(board, step);
      break;
    case StepRule::OneCandidate:
      applies = DeriveCandidate(board, step);
      break;
    case StepRule::OnePlace:
      applies = DerivePlace(board, step);
      break;
    case StepRule::Suppose:
      step.Left = Between(board, move.Cell, move.Number, move.Number);
      applies = IsGap(board, move.Cell) && !step.Left.IsNone();
      break;
    case StepRule::Refute:
      applies = DeriveRefuted(board, step);
      break;
    case StepRule::Search:
      break;
  }
  return applies && Narrows(board, step) ? std::optional(std::move(step)) : std::nullopt;
}

std::vector<Move> MovesOf(const Candidates& board, int line, Grade grade) {
  const std::vector<int> gaps = board.GapsOf(line);
  if (gaps.empty()) return {{StepRule::FullLine, line}};
  std::vector<Move> moves;
  for (const int cell : gaps) {
    if (gaps.size() == 1) {
      moves.push_back({StepRule::LastGap, line, cell});
    } else if (gaps.size() == 2) {
      moves.push_back({StepRule::TwoGaps, line, cell});
    } else if (grade >= Grade::Hard) {
      moves.push_back({StepRule::AtLeast, line, cell});
      moves.push_back({StepRule::AtMost, line, cell});
    }
  }
  return moves;
}

void Commit(Candidates& board, const Step& step) {
  if (step.Left.IsNone() || board.Value(step.Cell) != 0) return;
  board.Restrict(step.Cell, step.Left.Low, step.Left.High);
  if (board.IsNormal()) {
    for (std::int64_t number = step.Left.Low; number <= step.Left.High; ++number) {
      if (!step.Left.Has(number)) board.Remove(step.Cell, number);
    }
  }
  if (step.Fills()) board.Put(step.Cell, step.Left.Low);
}

}  // namespace numorra
