#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "app/board/random.h"
#include "puzzle/candidates.h"

namespace numorra {

/// What a complete search reports while it works.
class SearchWatcher {
 public:
  virtual ~SearchWatcher() = default;

  /// Called at every node, before the rules are applied.
  virtual void NoteNode() = 0;

  /// Called after the rules, if the node is not a leaf: whether to stop here.
  virtual bool Stops() = 0;

  /// Called at every solution: whether to stop, because enough are known.
  virtual bool NoteSolution(const Candidates& solved) = 0;
};

/// A depth-first search that finds every solution unless it is stopped. It branches on the gap with
/// the fewest candidates and applies the hard rules at every node.
///
/// Restarts try values in random order, and prefer gaps in lines that failed most often (weighted
/// degrees: Boussemart, Hemery, Lecoutre and Sais 2004).
class CompleteSearch {
 public:
  /// `board` holds what the rules have left open; each run restores it.
  CompleteSearch(Candidates& board, SearchWatcher& watcher);

  /// Each returns true if it has found all solutions, false if it was stopped.
  bool Run();
  bool Restart(Random& random, std::int64_t nodes);

 private:
  enum class End { AllSeen, Stopped };
  static constexpr std::int64_t kNoEnd = std::numeric_limits<std::int64_t>::max();

  bool RunOnce(std::int64_t nodes);
  End Descend();
  int Choose() const;
  template <class Act>
  End Try(Act act);
  End TryNumbers(int cell);
  End TryHalves(int cell);

  Candidates& board_;
  SearchWatcher& watcher_;
  Random* random_ = nullptr;           ///< in restarts
  std::vector<std::int64_t> weights_;  ///< by line: 1 plus the number of times that it failed
  std::int64_t nodesLeft_ = 0;
  int depth_ = 0;
};

}  // namespace numorra
