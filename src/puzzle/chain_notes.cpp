#include "puzzle/chain_notes.h"

#include <algorithm>
#include <limits>

namespace numorra {
namespace {

constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kGreatest = std::numeric_limits<std::int64_t>::max();

}  // namespace

ChainNotes::Note ChainNotes::NoteOf(Step step, int round, const Candidates& board) {
  Note note{std::move(step), round};
  if (note.Shown.Line < 0) return note;
  for (const int cell : board.GapsOf(note.Shown.Line))
    note.Used.push_back({cell, board.Low(cell), board.High(cell)});
  return note;
}

void ChainNotes::Add(Note note) {
  const Step& step = note.Shown;
  about_[step.Cell].push_back(Size());
  if (step.Fills()) {
    puts_[step.Left.Low].push_back(Size());
    filling_.emplace(step.Cell, Size());
  }
  notes_.push_back(std::move(note));
}

/// The numbers that the base allows in a cell outside a range; under the positive rules, only the
/// two next to the range, which stand for those beyond them.
ChainNotes::Numbers ChainNotes::Outside(int cell, std::int64_t low, std::int64_t high) const {
  Numbers numbers;
  if (!base_.IsNormal()) {
    if (low > base_.Low(cell)) numbers.push_back(low - 1);
    if (high < base_.High(cell)) numbers.push_back(high + 1);
    return numbers;
  }
  for (std::int64_t number = base_.Low(cell); number <= base_.High(cell); ++number) {
    if ((number < low || number > high) && base_.Allows(cell, number)) numbers.push_back(number);
  }
  return numbers;
}

/// Whether the note by itself rules a number out in a cell.
bool ChainNotes::RulesOut(const Note& note, int cell, std::int64_t number) const {
  const Step& step = note.Shown;
  if (step.Cell != cell) return base_.IsNormal() && step.Fills() && step.Left.Low == number;
  const std::int64_t rest = step.Sum - number;
  switch (step.By) {
    case StepRule::LastGap:
      return rest != 0;
    case StepRule::TwoGaps:
      return !step.Partner.Has(rest) || (base_.IsNormal() && rest == number);
    case StepRule::AtLeast:
      return rest > step.Others;
    case StepRule::AtMost:
      return rest < step.Others;
    default:
      return !step.Left.Has(number);
  }
}

/// Needs the numbers ruled out in a cell before a round; what no note rules out, the base does.
void ChainNotes::NeedRuledOut(int round, int cell, Numbers numbers) {
  std::vector<int> notes = about_[cell];
  if (base_.IsNormal()) {
    for (const std::int64_t number : numbers) {
      const std::vector<int>& puts = puts_[number];
      notes.insert(notes.end(), puts.begin(), puts.end());
    }
  }
  std::erase_if(notes, [&](int note) { return At(note).Round >= round; });
  std::sort(notes.begin(), notes.end());
  while (!numbers.empty()) {
    const auto ruledOutBy = [&](int note) {
      const auto count = std::count_if(numbers.begin(), numbers.end(), [&](std::int64_t number) {
        return RulesOut(At(note), cell, number);
      });
      return 2 * count + (count > 0 && needed_.count(note) > 0 ? 1 : 0);
    };
    const auto best = std::max_element(notes.begin(), notes.end(),
                                       [&](int a, int b) { return ruledOutBy(a) < ruledOutBy(b); });
    if (best == notes.end() || ruledOutBy(*best) == 0) return;
    Numbers& needed = needed_[*best];
    std::erase_if(numbers, [&](std::int64_t number) {
      if (!RulesOut(At(*best), cell, number)) return false;
      if (At(*best).Shown.Cell == cell) needed.push_back(number);
      return true;
    });
  }
}

void ChainNotes::NeedFilled(int cell) {
  if (const auto found = filling_.find(cell); found != filling_.end()) needed_[found->second];
}

/// What a rule of a line needs to rule out the numbers: the filled cells, and the others' ends.
void ChainNotes::NeedForLine(const Note& note, const Numbers& numbers) {
  const Step& step = note.Shown;
  for (const int cell : base_.Map().CellsOf(step.Line)) {
    const bool wasGap = std::any_of(note.Used.begin(), note.Used.end(),
                                    [&](const Note::Ends& ends) { return ends.Cell == cell; });
    if (base_.Value(cell) == 0 && !wasGap) NeedFilled(cell);
  }
  if (step.By == StepRule::TwoGaps) {
    Numbers partners;
    for (const std::int64_t number : numbers) {
      const std::int64_t rest = step.Sum - number;
      if (base_.Allows(step.OtherGap, rest) && !(base_.IsNormal() && rest == number)) {
        partners.push_back(rest);
      }
    }
    NeedRuledOut(note.Round, step.OtherGap, std::move(partners));
  }
  if (step.By != StepRule::AtLeast && step.By != StepRule::AtMost) return;
  for (const Note::Ends& ends : note.Used) {
    if (ends.Cell == step.Cell) continue;
    const bool isLeast = step.By == StepRule::AtLeast;
    NeedRuledOut(note.Round, ends.Cell,
                 Outside(ends.Cell, isLeast ? kLeast : ends.Low, isLeast ? ends.High : kGreatest));
  }
}

/// What a note needs to rule out the numbers in its cell.
void ChainNotes::NeedFor(const Note& note, const Numbers& numbers) {
  const Step& step = note.Shown;
  if (step.Line >= 0) {
    NeedForLine(note, numbers);
  } else if (step.By == StepRule::OneCandidate) {
    NeedRuledOut(note.Round, step.Cell, Outside(step.Cell, step.Left.Low, step.Left.High));
  } else if (step.By == StepRule::OnePlace) {
    for (int cell = 0; cell < base_.Cells(); ++cell) {
      if (cell == step.Cell || base_.Value(cell) != 0 || !base_.Allows(cell, step.Number)) continue;
      NeedRuledOut(note.Round, cell, {step.Number});
    }
  }
}

/// What the end needs: apart from what its own rule shows, all that narrowed its gap before.
void ChainNotes::NeedForEnd(const Note& end, const Candidates& board) {
  const Step& step = end.Shown;
  if (step.Cell < 0 || step.By == StepRule::OnePlace) return NeedFor(end, {});
  Numbers mine, others;
  const std::int64_t low = step.Left.IsNone() ? kGreatest : step.Left.Low;
  const std::int64_t high = step.Left.IsNone() ? kLeast : step.Left.High;
  if (base_.IsNormal()) {
    for (const std::int64_t number : Outside(step.Cell, 1, 0)) {
      if (number >= low && number <= high) continue;
      (step.Line >= 0 && RulesOut(end, step.Cell, number) ? mine : others).push_back(number);
    }
  } else {
    others = Outside(step.Cell, board.Low(step.Cell), board.High(step.Cell));
    if (step.By == StepRule::TwoGaps) {
      mine = {step.Sum - step.Partner.High - 1, step.Sum - step.Partner.Low + 1};
    }
  }
  NeedRuledOut(end.Round, step.Cell, std::move(others));
  if (step.Line >= 0) NeedFor(end, mine);
}

std::vector<Move> ChainNotes::Trace(const Note& end, const Candidates& board) {
  needed_.clear();
  NeedForEnd(end, board);
  std::vector<Move> moves{end.Shown};
  for (int index = Size() - 1; index >= 0; --index) {
    const auto needed = needed_.find(index);
    if (needed == needed_.end()) continue;
    NeedFor(At(index), Numbers(needed->second));
    moves.push_back(At(index).Shown);
  }
  std::reverse(moves.begin(), moves.end());
  return moves;
}

std::vector<Move> ChainNotes::Moves() const {
  std::vector<Move> moves;
  moves.reserve(notes_.size());
  for (const Note& note : notes_)
    moves.push_back(note.Shown);
  return moves;
}

}  // namespace numorra
