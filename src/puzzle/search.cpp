#include "puzzle/search.h"

#include <algorithm>
#include <limits>

#include "app/board/numbers.h"
#include "app/ports/timed_yielding.h"
#include "puzzle/complete_search.h"
#include "puzzle/local_search.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The i-th number, from 1, of Luby's sequence 1 1 2 1 1 2 4 1 1 2 1 1 2 4 8 ...
std::int64_t Luby(std::int64_t i) {
  std::int64_t power = 2;
  while (power - 1 < i)
    power *= 2;
  return power - 1 == i ? power / 2 : Luby(i - power / 2 + 1);
}

/// The number of local search steps worth one node of the complete search: the more gaps, the
/// longer the rules take and the less they find.
std::int64_t StepsOfNode(std::int64_t gaps) {
  constexpr std::int64_t kGapTriplesOfStep = 5000;
  return 1 + gaps * gaps * gaps / kGapTriplesOfStep;
}

class Search : private SearchWatcher {
 public:
  /// Without random numbers, only the complete search runs.
  Search(const Puzzle& puzzle, const SearchLimit& limit, Random* random, Yielding& yielding)
      : puzzle_(puzzle),
        limit_(limit),
        random_(random),
        yielding_(yielding),
        board_(puzzle),
        complete_(board_, *this) {}

  std::optional<std::int64_t> Count(std::int64_t most) {
    most_ = most;
    if (!board_.Propagate(Grade::Hard)) return 0;
    if (!complete_.Run() && solutions_ < most_) return std::nullopt;
    return solutions_;
  }

  SearchResult Run() {
    constexpr double kShareOfFirst = 0.1;
    constexpr std::int64_t kShortRuns = 15;
    if (puzzle_.Asked == Rules::Normal) {
      const std::string why = WhyNoneOfKind(puzzle_.Kind, puzzle_.Order());
      if (!why.empty()) return NoSolution{why};
    }
    if (!board_.Propagate(Grade::Hard)) return NoSolution{};
    if (IsEmptyNormal()) return Constructed();
    stepsOfNode_ = StepsOfNode(board_.Gaps());
    share_ = kShareOfFirst;
    bool allSeen = !limit_.Nodes && Restart(kShortRuns);
    if (!allSeen && !second_) allSeen = complete_.Run();
    share_ = 1;
    if (!allSeen) allSeen = Restart(std::numeric_limits<std::int64_t>::max());
    if (second_) return SeveralSolutions{*first_, *second_};
    if (!allSeen) return NotSettled{first_};
    if (first_) return OneSolution{*first_};
    return NoSolution{};
  }

 private:
  /// An empty board needs no search: a construction gives a square, which turned half round is
  /// another one.
  bool IsEmptyNormal() const {
    constexpr int kSmallestBordered = 5;
    return board_.IsNormal() && puzzle_.Gaps() == board_.Cells() &&
           (puzzle_.Order() >= kSmallestBordered || puzzle_.Kind != LineKind::Magic);
  }
  SearchResult Constructed() {
    SeveralSolutions both{puzzle_, puzzle_};
    both.First.Cells = Square<std::int64_t>(BuiltOfKind(puzzle_.Kind, puzzle_.Order(), *random_));
    std::reverse_copy(both.First.Cells.begin(), both.First.Cells.end(), both.Second.Cells.begin());
    return both;
  }

  /// Restarts the complete search until it has seen all solutions, or two are known, or its share
  /// of the limit is used up, or `runs` runs are done. True if all are seen.
  bool Restart(std::int64_t runs) {
    constexpr std::int64_t kShortest = 150;
    while (run_ < runs && !second_ && !IsOver(share_)) {
      if (complete_.Restart(*random_, kShortest * Luby(++run_))) return true;
    }
    return false;
  }

  bool IsOver(double share) const {
    const std::int64_t worth = nodes_ + steps_ / stepsOfNode_;
    const auto nodes = static_cast<double>(worth);
    if (limit_.Nodes && nodes >= share * static_cast<double>(*limit_.Nodes)) return true;
    return limit_.Seconds && yielding_.SecondsWorked() >= share * *limit_.Seconds;
  }

  void NoteNode() override {
    ++nodes_;
    yielding_.Yield();
  }

  bool Stops() override {
    SearchLocally();
    return IsEnough() || IsOver(share_);
  }

  bool NoteSolution(const Candidates& solved) override {
    ++solutions_;
    return Note([&](int cell) { return solved.Value(cell); });
  }

  /// Notes a solution; true if enough are known.
  template <class NumberIn>
  bool Note(NumberIn numberIn) {
    Puzzle solved = puzzle_;
    for (int cell = 0; cell < board_.Cells(); ++cell)
      solved.Cells[cell] = numberIn(cell);
    if (!first_) {
      first_ = std::move(solved);
    } else if (first_->Cells != solved.Cells) {
      second_ = std::move(solved);
    }
    return IsEnough();
  }

  bool IsEnough() const { return random_ ? second_.has_value() : solutions_ >= most_; }

  /// Lets the local search do as much work as the complete search has done since its head start, in
  /// slices with yields between them.
  void SearchLocally() {
    constexpr std::int64_t kHeadStart = 160'000;
    constexpr std::int64_t kSlice = 4096;
    if (!random_ || !board_.IsNormal()) return;
    const std::int64_t due = nodes_ * stepsOfNode_ - kHeadStart;
    if (steps_ >= due) return;
    if (!local_) StartLocalSearch();
    while (local_->CanRun() && steps_ < due && !second_ && !IsOver(1)) {
      steps_ += kSlice;
      if (local_->Run(kSlice)) {
        Note([&](int cell) { return NumberOfRoot(cell); });
        local_->GoOn();
      }
      yielding_.Yield();
    }
  }

  void StartLocalSearch() {
    root_.emplace(puzzle_);
    root_->Propagate(Grade::Hard);
    local_.emplace(*root_, *random_);
  }

  std::int64_t NumberOfRoot(int cell) const {
    return root_->Value(cell) != 0 ? root_->Value(cell) : local_->NumberIn(cell);
  }

  const Puzzle& puzzle_;
  const SearchLimit& limit_;
  Random* random_;
  TimedYielding yielding_;
  Candidates board_;
  CompleteSearch complete_;
  std::optional<Candidates> root_;  ///< as left by the rules alone
  std::optional<LocalSearch> local_;
  std::int64_t stepsOfNode_ = 1;
  std::int64_t run_ = 0;
  std::int64_t nodes_ = 0;
  std::int64_t steps_ = 0;
  std::int64_t solutions_ = 0;  ///< of the complete search; restarts count the same ones again
  std::int64_t most_ = 2;
  double share_ = 1;
  std::optional<Puzzle> first_;
  std::optional<Puzzle> second_;
};

}  // namespace

std::string WhyOpen(const NotSettled& open, double seconds) {
  if (!open.Found) {
    return Say("whether there is a solution was not settled in %1 seconds", Written(seconds));
  }
  return Say("there is a solution; whether it is the only one was not settled in %1 seconds",
             Written(seconds));
}

SearchResult Solve(const Puzzle& puzzle, const SearchLimit& limit, Random& random,
                   Yielding& yielding) {
  return Search(puzzle, limit, &random, yielding).Run();
}

std::optional<std::int64_t> CountSolutions(const Puzzle& puzzle, std::int64_t most,
                                           const SearchLimit& limit, Yielding& yielding) {
  return Search(puzzle, limit, nullptr, yielding).Count(most);
}

}  // namespace numorra
