#include "puzzle/complete_search.h"

#include <numeric>
#include <span>

namespace numorra {

CompleteSearch::CompleteSearch(Candidates& board, SearchWatcher& watcher)
    : board_(board),
      watcher_(watcher),
      weights_(static_cast<std::size_t>(board.Map().Lines()), 1) {}

bool CompleteSearch::Run() {
  random_ = nullptr;
  return RunOnce(kNoEnd);
}

bool CompleteSearch::Restart(Random& random, std::int64_t nodes) {
  random_ = &random;
  return RunOnce(nodes);
}

bool CompleteSearch::RunOnce(std::int64_t nodes) {
  nodesLeft_ = nodes;
  const std::size_t mark = board_.Mark();
  const End end = Descend();
  board_.UndoTo(mark);
  return end == End::AllSeen;
}

CompleteSearch::End CompleteSearch::Descend() {
  watcher_.NoteNode();
  --nodesLeft_;
  if (!board_.Propagate(Grade::Hard)) {
    if (board_.FailedLine() >= 0) ++weights_[static_cast<std::size_t>(board_.FailedLine())];
    return End::AllSeen;
  }
  if (board_.Solved()) return watcher_.NoteSolution(board_) ? End::Stopped : End::AllSeen;
  if (watcher_.Stops() || nodesLeft_ <= 0) return End::Stopped;
  const int cell = Choose();
  return board_.IsNormal() ? TryNumbers(cell) : TryHalves(cell);
}

/// The gap with the fewest candidates; restarts divide that count by how often the gap's lines
/// failed.
int CompleteSearch::Choose() const {
  int best = -1;
  double least = std::numeric_limits<double>::max();
  for (int cell = 0; cell < board_.Cells(); ++cell) {
    if (board_.Value(cell) != 0) continue;
    auto cost = static_cast<double>(board_.Count(cell));
    if (random_) {
      std::int64_t weight = 0;
      for (const int line : board_.Map().LinesOf(cell))
        weight += weights_[static_cast<std::size_t>(line)];
      cost /= static_cast<double>(weight);
    }
    if (cost >= least) continue;
    least = cost;
    best = cell;
  }
  return best;
}

/// Each try adds a level to the stack, and its changes are kept to be undone. Both are bounded:
/// large boards stop there.
template <class Act>
CompleteSearch::End CompleteSearch::Try(Act act) {
  constexpr int kMostLevels = 5000;
  constexpr std::size_t kMostChanges = 1'000'000;
  if (depth_ >= kMostLevels || board_.Mark() >= kMostChanges) return End::Stopped;
  ++depth_;
  const std::size_t mark = board_.Mark();
  const End end = act() ? Descend() : End::AllSeen;
  board_.UndoTo(mark);
  --depth_;
  return end;
}

CompleteSearch::End CompleteSearch::TryNumbers(int cell) {
  std::vector<std::int64_t> numbers;
  for (std::int64_t number = board_.Low(cell); number <= board_.High(cell); ++number) {
    if (board_.Allows(cell, number)) numbers.push_back(number);
  }
  if (random_) Shuffle(std::span(numbers), *random_);
  for (const std::int64_t number : numbers) {
    const End end = Try([&] { return board_.Put(cell, number); });
    if (end != End::AllSeen) return end;
  }
  return End::AllSeen;
}

CompleteSearch::End CompleteSearch::TryHalves(int cell) {
  const std::int64_t low = board_.Low(cell);
  const std::int64_t high = board_.High(cell);
  const std::int64_t middle = std::midpoint(low, high);
  const bool upperFirst = random_ != nullptr && random_->Between(0, 1) == 1;
  for (const bool upper : {upperFirst, !upperFirst}) {
    const End end = Try([&] {
      return upper ? board_.Restrict(cell, middle + 1, high) : board_.Restrict(cell, low, middle);
    });
    if (end != End::AllSeen) return end;
  }
  return End::AllSeen;
}

}  // namespace numorra
