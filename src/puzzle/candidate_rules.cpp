#include <algorithm>
#include <limits>
#include <numeric>

#include "puzzle/candidates.h"

namespace numorra {
namespace {

/// The smallest sum of different numbers of which the i-th is at least low[i]; `low` is sorted. The
/// number at `without` is left out.
std::int64_t LeastWithout(const std::vector<std::int64_t>& low, std::size_t without,
                          bool different) {
  std::int64_t sum = 0;
  std::int64_t last = std::numeric_limits<std::int64_t>::min() / 2;
  for (std::size_t i = 0; i < low.size(); ++i) {
    if (i == without) continue;
    last = different ? std::max(low[i], last + 1) : low[i];
    sum += last;
  }
  return sum;
}

}  // namespace

bool Candidates::ApplyPair(int line, int a, int b) {
  const std::int64_t sum = Rest(line);
  if (!Restrict(a, sum - High(b), sum - Low(b)) || !Restrict(b, sum - High(a), sum - Low(a))) {
    return false;
  }
  if (!IsNormal()) return true;
  for (const auto& [cell, other] : {std::pair(a, b), std::pair(b, a)}) {
    for (std::int64_t number = Low(cell); number <= High(cell); ++number) {
      if (!Allows(cell, number)) continue;
      const bool stays = number != sum - number && Allows(other, sum - number);
      if (!stays && !Remove(cell, number)) return false;
    }
  }
  return true;
}

bool Candidates::ApplyBounds(int line) {
  const std::int64_t sum = Rest(line);
  // The largest sum is found as the smallest sum of the negatives.
  for (const bool least : {true, false}) {
    ordered_.clear();
    for (const int cell : map_.CellsOf(line)) {
      if (Value(cell) == 0) ordered_.emplace_back(least ? Low(cell) : -High(cell), cell);
    }
    std::sort(ordered_.begin(), ordered_.end());
    bounds_.clear();
    for (const auto& [bound, cell] : ordered_)
      bounds_.push_back(bound);
    const std::int64_t plain = std::accumulate(bounds_.begin(), bounds_.end(), std::int64_t{0});
    for (std::size_t i = 0; i < ordered_.size(); ++i) {
      const int cell = ordered_[i].second;
      const std::int64_t others = IsNormal() ? LeastWithout(bounds_, i, true) : plain - bounds_[i];
      const bool possible = least ? Restrict(cell, Low(cell), sum - others)
                                  : Restrict(cell, sum + others, High(cell));
      if (!possible) return false;
    }
  }
  return true;
}

bool Candidates::Apply(int line, Grade grade, bool put) {
  const int open = open_[At(line)];
  if (open == 0) return Rest(line) == 0;
  if (open > 2) return grade < Grade::Hard || ApplyBounds(line);
  int gaps[2] = {};
  int found = 0;
  for (const int cell : map_.CellsOf(line)) {
    if (Value(cell) == 0) gaps[found++] = cell;
  }
  if (open == 1) {
    if (put) return Put(gaps[0], Rest(line));
    return grade == Grade::Easy ? Allows(gaps[0], Rest(line))
                                : Restrict(gaps[0], Rest(line), Rest(line));
  }
  return grade == Grade::Easy || ApplyPair(line, gaps[0], gaps[1]);
}

/// Fills cells with a single candidate, and places numbers that have a single cell left.
bool Candidates::PutSingles(bool& changed) {
  for (int cell = 0; cell < Cells(); ++cell) {
    if (Value(cell) != 0 || Count(cell) != 1) continue;
    changed = true;
    if (!Put(cell, Low(cell))) return false;
  }
  if (changed || !IsNormal()) return true;
  Single single;
  if (!FindSinglePlace(single)) return false;
  if (single.Cell < 0) return true;
  changed = true;
  return Put(single.Cell, single.Number);
}

/// Applies the rules to the queued lines; fills gaps only if `put` is set.
///
/// The bounds of large numbers may approach each other in steps of one. The rules then stop early,
/// which is safe: the search does the rest, and here a line without gaps is still checked.
bool Candidates::ApplyWaiting(Grade grade, bool put) {
  constexpr int kMostApplied = 100'000;
  failedLine_ = -1;
  for (int applied = 0; !waiting_.empty(); ++applied) {
    const int line = waiting_.back();
    waiting_.pop_back();
    touched_[At(line)] = 0;
    const bool goesOn = applied < kMostApplied;
    if (goesOn ? Apply(line, grade, put) : open_[At(line)] > 0 || Rest(line) == 0) continue;
    failedLine_ = line;
    return false;
  }
  return true;
}

bool Candidates::Propagate(Grade grade) {
  for (;;) {
    if (impossible_ || !ApplyWaiting(grade, true)) return false;
    bool changed = false;
    if (grade > Grade::Easy && !PutSingles(changed)) return false;
    if (!changed) return true;
  }
}

bool Candidates::ApplyOnce(Grade grade) {
  const std::size_t before = Mark();
  for (int line = 0; line < map_.Lines(); ++line) {
    const int open = open_[At(line)];
    if (open < 2 || (open == 2) != (grade == Grade::Medium)) continue;
    if (!Apply(line, grade, true)) return false;
    if (Mark() != before) return true;
  }
  bool changed = false;
  return grade == Grade::Medium && PutSingles(changed) && changed;
}

bool Candidates::Narrow(Grade grade) {
  return !impossible_ && ApplyWaiting(grade, false);
}

std::int64_t LeastSum(std::vector<std::int64_t> low, bool different) {
  std::sort(low.begin(), low.end());
  return LeastWithout(low, low.size(), different);
}

}  // namespace numorra
