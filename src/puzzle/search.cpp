#include "puzzle/search.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <vector>

#include "app/board/numbers.h"
#include "app/ports/timed_yielding.h"
#include "puzzle/candidates.h"
#include "study/special.h"

namespace numorra {
namespace {

/// The i-th number, from 1, of 1 1 2 1 1 2 4 1 1 2 1 1 2 4 8 ...
std::int64_t Luby(std::int64_t i) {
  std::int64_t power = 2;
  while (power - 1 < i)
    power *= 2;
  return power - 1 == i ? power / 2 : Luby(i - power / 2 + 1);
}

class Search {
 public:
  /// Without random numbers there is the complete search alone.
  Search(const Puzzle& puzzle, const SearchLimit& limit, Random* random, Yielding& yielding)
      : puzzle_(puzzle),
        limit_(limit),
        random_(random),
        yielding_(yielding),
        board_(puzzle),
        weights_(static_cast<std::size_t>(board_.Map().Lines()), 1) {}

  std::optional<std::int64_t> Count(std::int64_t most) {
    most_ = most;
    if (!board_.Propagate(Grade::Hard)) return 0;
    if (board_.Gaps() > kMostSearchedGaps || !RunOnce(kNoEnd, 1)) return std::nullopt;
    return solutions_;
  }

  SearchResult Run() {
    constexpr double kShareOfFirst = 0.1;
    constexpr std::int64_t kRestart = 150;
    if (!board_.Propagate(Grade::Hard)) return NoSolution{};
    if (IsEmptyNormal()) return Constructed();
    if (board_.Gaps() > kMostSearchedGaps) return NotSettled{.Searched = false};
    if (RunOnce(kNoEnd, kShareOfFirst)) return Result();
    randomly_ = true;
    for (std::int64_t run = 1; !IsOver(1); ++run) {
      if (RunOnce(nodes_ + kRestart * Luby(run), 1)) return Result();
    }
    return NotSettled{first_};
  }

 private:
  enum class End { AllSeen, Enough, OutOfTime };
  static constexpr std::int64_t kNoEnd = std::numeric_limits<std::int64_t>::max();

  /// Whether a search that stops after so many nodes in all, or that share of the limit, has come
  /// to its end.
  bool RunOnce(std::int64_t nodes, double share) {
    lastNode_ = nodes;
    share_ = share;
    const std::size_t mark = board_.Mark();
    const End end = Descend();
    board_.UndoTo(mark);
    return end != End::OutOfTime;
  }

  /// A board without a number needs no search: a construction gives a square, which turned
  /// half round is another.
  bool IsEmptyNormal() const {
    constexpr int kSmallestBordered = 5;
    return board_.IsNormal() && puzzle_.Order() >= kSmallestBordered &&
           puzzle_.Gaps() == board_.Cells();
  }
  SearchResult Constructed() {
    SeveralSolutions both{puzzle_, puzzle_};
    both.First.Cells = Square<std::int64_t>(BorderedSquare(puzzle_.Order(), *random_));
    std::copy(both.First.Cells.begin(), both.First.Cells.end(),
              std::make_reverse_iterator(both.Second.Cells.end()));
    return both;
  }

  SearchResult Result() const {
    if (second_) return SeveralSolutions{*first_, *second_};
    if (first_) return OneSolution{*first_};
    return NoSolution{};
  }

  bool IsOver(double share) const {
    if (limit_.Nodes && static_cast<double>(nodes_) >= share * static_cast<double>(*limit_.Nodes)) {
      return true;
    }
    return limit_.Seconds && yielding_.SecondsWorked() >= share * *limit_.Seconds;
  }

  /// Notes a solution; true when enough are known.
  bool NoteSolution() {
    Puzzle solved = puzzle_;
    for (int cell = 0; cell < board_.Cells(); ++cell)
      solved.Cells[cell] = board_.Value(cell);
    ++solutions_;
    if (!first_) {
      first_ = std::move(solved);
    } else if (first_->Cells != solved.Cells) {
      second_ = std::move(solved);
    }
    return random_ ? second_.has_value() : solutions_ >= most_;
  }

  End Descend() {
    ++nodes_;
    yielding_.Yield();
    if (!board_.Propagate(Grade::Hard)) {
      if (board_.FailedLine() >= 0) ++weights_[static_cast<std::size_t>(board_.FailedLine())];
      return End::AllSeen;
    }
    if (board_.Solved()) return NoteSolution() ? End::Enough : End::AllSeen;
    if (nodes_ >= lastNode_ || IsOver(share_)) return End::OutOfTime;
    const int cell = Choose();
    return board_.IsNormal() ? TryNumbers(cell) : TryHalves(cell);
  }

  /// The gap with the fewest possibilities; in restarts by how often its lines have failed, too.
  int Choose() const {
    int best = -1;
    double least = std::numeric_limits<double>::max();
    for (int cell = 0; cell < board_.Cells(); ++cell) {
      if (board_.Value(cell) != 0) continue;
      auto cost = static_cast<double>(board_.Count(cell));
      if (randomly_) {
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

  /// Each try is a level of the stack.
  template <class Act>
  End Try(Act act) {
    constexpr int kMostLevels = 5000;
    if (depth_ >= kMostLevels) return End::OutOfTime;
    ++depth_;
    const std::size_t mark = board_.Mark();
    const End end = act() ? Descend() : End::AllSeen;
    board_.UndoTo(mark);
    --depth_;
    return end;
  }

  End TryNumbers(int cell) {
    std::vector<std::int64_t> numbers;
    for (std::int64_t number = board_.Low(cell); number <= board_.High(cell); ++number) {
      if (board_.Allows(cell, number)) numbers.push_back(number);
    }
    if (randomly_) Shuffle(std::span(numbers), *random_);
    for (const std::int64_t number : numbers) {
      const End end = Try([&] { return board_.Put(cell, number); });
      if (end != End::AllSeen) return end;
    }
    return End::AllSeen;
  }

  End TryHalves(int cell) {
    const std::int64_t low = board_.Low(cell);
    const std::int64_t high = board_.High(cell);
    const std::int64_t middle = std::midpoint(low, high);
    const bool upperFirst = randomly_ && random_->Between(0, 1) == 1;
    for (const bool upper : {upperFirst, !upperFirst}) {
      const End end = Try([&] {
        return upper ? board_.Restrict(cell, middle + 1, high) : board_.Restrict(cell, low, middle);
      });
      if (end != End::AllSeen) return end;
    }
    return End::AllSeen;
  }

  const Puzzle& puzzle_;
  const SearchLimit& limit_;
  Random* random_;
  TimedYielding yielding_;
  Candidates board_;
  std::vector<std::int64_t> weights_;  ///< by line: 1 and how often it was found impossible
  bool randomly_ = false;
  std::int64_t nodes_ = 0;
  int depth_ = 0;
  std::int64_t solutions_ = 0;  ///< as they were found, in restarts the same ones again
  std::int64_t most_ = 2;
  std::int64_t lastNode_ = 0;
  double share_ = 1;
  std::optional<Puzzle> first_;
  std::optional<Puzzle> second_;
};

}  // namespace

std::string WhyOpen(const NotSettled& open, double seconds) {
  if (!open.Searched) {
    return "whether there is a solution is open: more than " + std::to_string(kMostSearchedGaps) +
           " gaps are too many to search";
  }
  const char* const what = open.Found ? "there is a solution; whether it is the only one was"
                                      : "whether there is a solution was";
  return what + (" not settled in " + Decimal(seconds)) + " seconds";
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
