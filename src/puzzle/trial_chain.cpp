#include "puzzle/trial_chain.h"

#include <algorithm>
#include <map>

#include "puzzle/chain.h"
#include "puzzle/rating.h"
#include "puzzle/step_rules.h"
#include "puzzle/trials.h"

namespace numorra {
namespace {

constexpr std::size_t kMostExplained = 8;  // choices of which the shortest is taken

}  // namespace

TrialChainFinder::TrialChainFinder(const Puzzle& puzzle, Yielding& yielding)
    : fresh_(puzzle), board_(puzzle), yielding_(yielding), left_(kMostTrials) {}

std::optional<Chain> TrialChainFinder::ToNumber() {
  if (!board_.Narrow(Grade::Hard)) return std::nullopt;
  if (auto chain = Shortest(Singles())) return chain;
  if (auto chain = Shortest(Groups())) return chain;
  Choice several = Several();
  return several.empty() ? std::nullopt : Shortest({std::move(several)});
}

/// The changes that a trial makes before it shows a contradiction; nothing if it shows none.
std::optional<std::size_t> TrialChainFinder::WorkToRefute(int cell, std::int64_t number) {
  if (left_ <= 0) return std::nullopt;
  --left_;
  yielding_.Yield();
  const std::size_t mark = board_.Mark();
  const bool possible = board_.Put(cell, number) && board_.Propagate(Grade::Hard);
  const std::size_t work = board_.Mark() - mark;
  board_.UndoTo(mark);
  return possible ? std::nullopt : std::optional(work);
}

/// The gaps, those with the fewest candidates first.
std::vector<int> TrialChainFinder::GapsToTry() const {
  std::vector<int> gaps;
  const std::int64_t most = Trials::MostTried(board_.IsNormal());
  for (int cell = 0; cell < board_.Cells(); ++cell) {
    if (board_.Value(cell) == 0 && board_.Count(cell) <= most) gaps.push_back(cell);
  }
  std::stable_sort(gaps.begin(), gaps.end(),
                   [&](int a, int b) { return board_.Count(a) < board_.Count(b); });
  return gaps;
}

std::vector<std::int64_t> TrialChainFinder::NumbersToTry(int cell) const {
  if (!board_.IsNormal()) return {board_.Low(cell), board_.High(cell)};
  return PossibleIn(board_, cell).Listed;
}

/// Whether a gap or a number has one possibility left.
bool TrialChainFinder::GivesNumber() {
  for (int cell = 0; cell < board_.Cells(); ++cell) {
    if (board_.Value(cell) == 0 && board_.Count(cell) == 1) return true;
  }
  Candidates::Single single;
  return board_.IsNormal() && board_.FindSinglePlace(single) && single.Cell >= 0;
}

/// Removes a refuted number and applies the hard rules.
bool TrialChainFinder::Remove(const Refuted& refuted) {
  return board_.Remove(refuted.Cell, refuted.Number) && board_.Narrow(Grade::Hard);
}

/// Notes what one trial each refutes, until there are enough that give a number at once.
std::vector<TrialChainFinder::Choice> TrialChainFinder::Singles() {
  std::vector<Choice> singles;
  for (const int cell : GapsToTry()) {
    for (const std::int64_t number : NumbersToTry(cell)) {
      const auto work = WorkToRefute(cell, number);
      if (!work) continue;
      refuted_.push_back({cell, number, *work});
      const std::size_t mark = board_.Mark();
      if (Remove(refuted_.back()) && GivesNumber()) singles.push_back({refuted_.back()});
      board_.UndoTo(mark);
      if (singles.size() >= kMostExplained) return singles;
    }
  }
  return singles;
}

/// The refuted numbers of a gap, or of all gaps of a number, that leave one possibility.
std::vector<TrialChainFinder::Choice> TrialChainFinder::Groups() const {
  std::map<int, Choice> inCell;
  std::map<std::int64_t, Choice> ofNumber;
  for (const Refuted& refuted : refuted_) {
    inCell[refuted.Cell].push_back(refuted);
    ofNumber[refuted.Number].push_back(refuted);
  }
  std::vector<Choice> groups;
  for (const auto& [cell, choice] : inCell) {
    if (static_cast<std::int64_t>(choice.size()) + 1 == board_.Count(cell)) {
      groups.push_back(choice);
    }
  }
  for (const auto& [number, choice] : ofNumber) {
    std::size_t places = 0;
    for (int cell = 0; cell < board_.Cells(); ++cell)
      places += board_.Value(cell) == 0 && board_.Allows(cell, number) ? 1U : 0U;
    if (board_.IsNormal() && choice.size() + 1 == places) groups.push_back(choice);
  }
  return groups;
}

/// Refutes what can be refuted, gap by gap, until a number is given; empty if none is.
TrialChainFinder::Choice TrialChainFinder::Several() {
  Choice choice;
  const std::size_t mark = board_.Mark();
  bool given = false;
  bool goesOn = true;
  while (goesOn && !given) {
    const std::size_t before = choice.size();
    for (const int cell : GapsToTry()) {
      for (const std::int64_t number : NumbersToTry(cell)) {
        if (given || !board_.Allows(cell, number)) continue;
        const auto work = WorkToRefute(cell, number);
        if (!work) continue;
        choice.push_back({cell, number, *work});
        if (!Remove(choice.back())) return {};
        given = GivesNumber();
      }
    }
    goesOn = choice.size() > before;
  }
  board_.UndoTo(mark);
  return given ? Reduced(std::move(choice)) : Choice{};
}

/// Whether these trials give a number; leaves out those that refute nothing.
bool TrialChainFinder::Suffices(Choice& choice) {
  const std::size_t mark = board_.Mark();
  std::erase_if(choice, [&](const Refuted& refuted) {
    const std::vector<std::int64_t> numbers = NumbersToTry(refuted.Cell);
    return std::find(numbers.begin(), numbers.end(), refuted.Number) == numbers.end() ||
           !WorkToRefute(refuted.Cell, refuted.Number) || !Remove(refuted);
  });
  const bool gives = GivesNumber();
  board_.UndoTo(mark);
  return gives;
}

/// Leaves out trials as long as the rest gives a number: half of them at first, then fewer at a
/// time.
TrialChainFinder::Choice TrialChainFinder::Reduced(Choice choice) {
  for (std::size_t size = choice.size() / 2; size > 0; size /= 2) {
    for (std::size_t end = choice.size(); end >= size; end = std::min(end - size, choice.size())) {
      Choice fewer = choice;
      const auto last = fewer.begin() + static_cast<std::ptrdiff_t>(end);
      fewer.erase(last - static_cast<std::ptrdiff_t>(size), last);
      if (Suffices(fewer)) choice = std::move(fewer);
    }
  }
  return choice;
}

std::optional<Chain> TrialChainFinder::Shortest(std::vector<Choice> choices) {
  const auto workOf = [](const Choice& choice) {
    std::size_t work = 0;
    for (const Refuted& refuted : choice)
      work += refuted.Work;
    return work;
  };
  std::stable_sort(choices.begin(), choices.end(),
                   [&](const Choice& a, const Choice& b) { return workOf(a) < workOf(b); });
  if (choices.size() > kMostExplained) choices.resize(kMostExplained);
  std::optional<Chain> best;
  const Choice* chosen = nullptr;
  const auto explain = [&](const Choice& choice, bool narrowFirst) {
    auto chain = Explained(choice, narrowFirst);
    if (!chain || (best && chain->size() >= best->size())) return;
    best = std::move(chain);
    chosen = &choice;
  };
  for (const Choice& choice : choices)
    explain(choice, !fresh_.IsNormal());
  if (chosen && fresh_.IsNormal()) explain(*chosen, true);
  return best;
}

/// The trials one after another, and the steps from there to the number. With `narrowFirst`, the
/// board is narrowed before each of them.
std::optional<Chain> TrialChainFinder::Explained(const Choice& choice, bool narrowFirst) {
  Candidates told = fresh_;
  std::vector<Move> moves;
  const auto make = [&](const std::vector<Move>& more) {
    moves.insert(moves.end(), more.begin(), more.end());
  };
  const auto narrow = [&] {
    const auto narrowing = ChainFinder(told, Grade::Hard, yielding_).Narrowing();
    for (const Move& move : narrowing) {
      if (const auto step = Derive(told, move)) Commit(told, *step);
    }
    make(narrowing);
  };
  for (const Refuted& refuted : choice) {
    if (narrowFirst) narrow();
    const auto trial =
        ChainFinder(told, Grade::Hard, yielding_).ToRefute(refuted.Cell, refuted.Number);
    if (!trial) return std::nullopt;
    make({trial->begin(), trial->end()});
    told.Remove(refuted.Cell, refuted.Number);
  }
  if (const auto rest = ChainFinder(told, Grade::Hard, yielding_).ToNumber()) {
    make({rest->begin(), rest->end()});
  }
  Candidates board = fresh_;
  auto chain = Replayed(board, moves, ChainGoal::Number);
  return chain ? std::optional(Shortened(board, std::move(*chain), ChainGoal::Number, yielding_))
               : std::nullopt;
}

}  // namespace numorra
