#pragma once

#include <optional>
#include <vector>

#include "app/ports/yielding.h"
#include "puzzle/chain_replay.h"

namespace numorra {

/// Finds the chain to a number by trials, for boards where the hard rules give none. First it looks
/// for the numbers to refute, with the fast rules of `Candidates`:
///
/// 1. one refuted number after which the hard rules give a number; or else
/// 2. all numbers but one of a gap, or all gaps but one of a number; or else
/// 3. refuted numbers one after another until the rules give a number, without those that turn out
///    not to matter.
///
/// Then a ChainFinder explains each trial, from the board and the numbers refuted before; or from
/// the board as the hard rules narrow it, so that trials share the steps outside them. Under the
/// positive rules only this refutes anything, because a number must be the end of a range. The
/// choice and the way with the shortest chain are taken.
class TrialChainFinder {
 public:
  /// Yields at every trial; an exception thrown by a yield ends the search.
  TrialChainFinder(const Puzzle& puzzle, Yielding& yielding);

  /// The chain to the next number; nothing if trials give none, or after kMostTrials of them.
  std::optional<Chain> ToNumber();

 private:
  struct Refuted {
    int Cell;
    std::int64_t Number;
    std::size_t Work;  ///< changes made until the contradiction
  };
  using Choice = std::vector<Refuted>;

  std::optional<std::size_t> WorkToRefute(int cell, std::int64_t number);
  std::vector<int> GapsToTry() const;
  std::vector<std::int64_t> NumbersToTry(int cell) const;
  bool GivesNumber();
  bool Remove(const Refuted& refuted);

  std::vector<Choice> Singles();
  std::vector<Choice> Groups() const;
  Choice Several();
  bool Suffices(Choice& choice);
  Choice Reduced(Choice choice);

  std::optional<Chain> Shortest(std::vector<Choice> choices);
  std::optional<Chain> Explained(const Choice& choice, bool narrowFirst);

  const Candidates fresh_;  ///< before any rule
  Candidates board_;        ///< narrowed by the hard rules
  Yielding& yielding_;
  std::int64_t left_;
  Choice refuted_;  ///< all that one trial each refutes at first
};

}  // namespace numorra
