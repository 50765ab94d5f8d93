#pragma once

#include <array>
#include <cstdint>

#include "puzzle/numbering.h"

namespace numorra {

/// Looks for a solution of a normal board from numberings at random, by simulated annealing
/// (Kirkpatrick, Gelatt and Vecchi 1983). It proves nothing where it finds none.
///
/// A step exchanges two numbers: mostly two whose difference is no more than the temperature makes
/// likely to be accepted, or a little larger ones within a line, which change two lines alone. When
/// the board is cold, steps alternate with pair steps: of two rows (or columns), one wrong and the
/// other wrong the opposite way where there are such, all exchanges over up to eight common gaps
/// are looked at, and one is chosen by its Boltzmann weight.
///
/// A run cools from hot to cold once, and where that does not lead to a solution, warms up a little
/// and cools again a few times (thermal cycling). The next run takes half as many steps again.
class LocalSearch {
 public:
  LocalSearch(const Candidates& board, Random& random);

  /// Whether there is anything for it to do.
  bool CanRun() const { return numbering_.IsPossible() && numbering_.Gaps() > 1; }

  /// Goes on for about so many steps; true as soon as the board is solved.
  bool Run(std::int64_t steps);

  /// The solution that Run has found, by cell; 0 for a cell that was no gap.
  std::int64_t NumberIn(int cell) const {
    return numbering_.IsGap(cell) ? numbering_.NumberOf(cell) : 0;
  }

  /// Warms the board up after a solution, for another one near it.
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
  std::int64_t runSteps_ = 0;  ///< how long the first cooling of a run takes
  std::int64_t done_ = 0;      ///< of these
  int cooling_ = 0;            ///< the run's first is 0
  double temperature_ = 0;
  int reach_ = 1;  ///< how many ranks apart exchanged numbers may be
  std::array<std::array<int, 2>, kMostCommon> common_{};  ///< pairs of gaps in two lines
};

}  // namespace numorra
