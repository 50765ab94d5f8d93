#include "puzzle/trials.h"

#include <algorithm>
#include <numeric>

namespace numorra {

bool Trials::Refutes(int cell, std::int64_t number) {
  if (left_ <= 0) return false;
  --left_;
  yielding_.Yield();
  const std::size_t mark = board_.Mark();
  const bool possible = board_.Put(cell, number) && board_.Propagate(Grade::Hard);
  board_.UndoTo(mark);
  if (!possible) ++refuted_;
  return !possible;
}

bool Trials::TryEnd(int cell, bool low) {
  while (board_.Value(cell) == 0) {
    const std::int64_t number = low ? board_.Low(cell) : board_.High(cell);
    if (!Refutes(cell, number)) return true;
    if (!board_.Remove(cell, number) || !board_.Propagate(Grade::Hard)) return false;
  }
  return true;
}

/// Tries the candidates of a gap; false if the board contradicts itself.
bool Trials::TryCell(int cell) {
  if (!board_.IsNormal()) return TryEnd(cell, true) && TryEnd(cell, false);
  const std::int64_t last = board_.High(cell);
  for (std::int64_t number = board_.Low(cell); number <= last; ++number) {
    if (board_.Value(cell) != 0) break;
    if (!board_.Allows(cell, number) || !Refutes(cell, number)) continue;
    if (!board_.Remove(cell, number) || !board_.Propagate(Grade::Hard)) return false;
  }
  return true;
}

bool Trials::Run(const std::vector<int>& cells) {
  if (!board_.Propagate(Grade::Hard)) return false;
  for (int before = -1; refuted_ != before;) {
    before = refuted_;
    std::vector<int> gaps;
    std::copy_if(cells.begin(), cells.end(), std::back_inserter(gaps), [&](int cell) {
      return board_.Value(cell) == 0 && board_.Count(cell) <= MostTried(board_.IsNormal());
    });
    std::stable_sort(gaps.begin(), gaps.end(),
                     [&](int a, int b) { return board_.Count(a) < board_.Count(b); });
    for (const int cell : gaps) {
      if (board_.Value(cell) == 0 && !TryCell(cell)) return false;
    }
  }
  return true;
}

bool Trials::Run() {
  std::vector<int> cells(static_cast<std::size_t>(board_.Cells()));
  std::iota(cells.begin(), cells.end(), 0);
  return Run(cells);
}

}  // namespace numorra
