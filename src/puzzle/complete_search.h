#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "app/board/random.h"
#include "puzzle/candidates.h"

namespace numorra {

/// What a complete search tells while it works.
class SearchWatcher {
 public:
  virtual ~SearchWatcher() = default;

  /// At every node, before the rules are applied to it.
  virtual void NoteNode() = 0;

  /// After them, where the node is no end: whether the search is to stop here.
  virtual bool Stops() = 0;

  /// At every solution: whether it is to stop, as enough are known.
  virtual bool NoteSolution(const Candidates& solved) = 0;
};

/// A depth-first search that sees every solution unless it is stopped: smallest choice first, the
/// hard rules at every node.
///
/// Restarts try random values, and first the gaps in lines that were found impossible most often
/// (weighted degrees: Boussemart, Hemery, Lecoutre and Sais 2004).
class CompleteSearch {
 public:
  /// `board` is as the rules left it, and is so again after each run.
  CompleteSearch(Candidates& board, SearchWatcher& watcher);

  /// Each is true when all solutions were seen, false when the search was stopped.
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
  std::vector<std::int64_t> weights_;  ///< by line: 1 and how often it was found impossible
  std::int64_t nodesLeft_ = 0;
  int depth_ = 0;
};

}  // namespace numorra
