#pragma once

#include <array>
#include <cstdint>

#include "puzzle/numbering.h"

namespace numorra {

/// Looks for a solution of a normal board, starting from random numberings, by simulated annealing
/// (Kirkpatrick, Gelatt and Vecchi 1983). If it finds none, that proves nothing.
///
/// A step exchanges two numbers: mostly two whose difference is small enough to be likely to be
/// accepted at this temperature; sometimes two of one line, which leaves that line as it is;
/// sometimes any two. When the board is cold, steps alternate with pair steps. A pair step takes
/// two rows (or columns), if possible one whose sum is too large and one whose sum is too small. It
/// considers all combinations of exchanges across up to eight common gaps, and chooses one by its
/// Boltzmann weight.
///
/// A run cools from hot to cold once. If this does not solve the board, the run warms it a little
/// and cools it again a few times (thermal cycling). Each run takes half as many steps again as the
/// one before.
class LocalSearch {
 public:
  LocalSearch(const Candidates& board, Random& random);

  /// Whether there is anything to search.
  bool CanRun() const { return numbering_.IsPossible() && numbering_.Gaps() > 1; }

  /// Continues for about `steps` steps; true as soon as the board is solved.
  bool Run(std::int64_t steps);

  /// The solution that Run has found, by cell; 0 for cells that were not gaps.
  std::int64_t NumberIn(int cell) const {
    return numbering_.IsGap(cell) ? numbering_.NumberOf(cell) : 0;
  }

  /// Warms the board up after a solution, to look for another one nearby.
  void GoOn();

 private:
  static constexpr int kMostCommon = 8;

  void StartRun();
  void NextTemperature();
  void Step();
  void Propose(int a, int b);
  bool Accepts(std::int64_t increase);
  std::int64_t StepPair();
  int WrongLine(int first, int sign);
  int FindCommonGaps(int one, int other);

  Numbering numbering_;
  QuickRandom random_;
  std::int64_t runSteps_ = 0;  ///< steps of the first cooling of a run
  std::int64_t done_ = 0;      ///< steps done of the current cooling
  int cooling_ = 0;            ///< index within the run
  double temperature_ = 0;
  int reach_ = 1;  ///< largest difference of ranks in an exchange
  std::array<std::array<int, 2>, kMostCommon> common_{};  ///< pairs of gaps in two lines
};

}  // namespace numorra
