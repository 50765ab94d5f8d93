#include <algorithm>
#include <cstdio>
#include <set>

#include "app/board/board.h"
#include "benches.h"
#include "generate/variable_square.h"

namespace numorra::bench {
namespace {

constexpr int kOrdersOfVariety[] = {4, 5, 6, 8, 10, 20, 50};
constexpr int kBases[] = {2, 3, 4, 5, 10, 60};

/// What lacks variety in a set of builds, as shares from 0 to 1.
struct Dullness {
  double Flat = 0;        ///< boards with one number everywhere
  double Equal = 0;       ///< cells that hold the board's most frequent number
  double StuckCell = 0;   ///< boards that hold the base in the cell that does so most often
  double Unsolvable = 0;  ///< builds that found nothing in ten tries
};

Dullness DullnessAt(int order, int base, int remainder) {
  const int builds = order > 10 ? 40 : 400;
  TickingClock time(7);
  ClockSeededRandom random(time);
  SilentStage stage;
  VariableSquare generator(random, stage);
  const auto plan = PlanVariableSquare(order, base * order + remainder, false, false);
  Dullness dullness;
  CellTable atBase;
  int built = 0;
  for (int build = 0; build < builds; ++build) {
    VariableBuild square;
    square.Status = SolveStatus::TryAgain;
    for (int tries = 1; tries <= kTries && square.Status == SolveStatus::TryAgain; ++tries)
      square = generator.Build(plan, {}, tries);
    if (square.Status != SolveStatus::Built) continue;
    ++built;
    std::multiset<double> values;
    ForEachCell(order, [&](int r, int c) {
      values.insert(square.Square(r, c));
      atBase(r, c) += square.Square(r, c) == base ? 1 : 0;
    });
    std::size_t most = 0;
    for (const double value : values)
      most = std::max(most, values.count(value));
    dullness.Flat += most == values.size() ? 1 : 0;
    dullness.Equal += static_cast<double>(most) / (order * order);
  }
  ForEachCell(order, [&](int r, int c) {
    dullness.StuckCell = std::max(dullness.StuckCell, atBase(r, c) / built);
  });
  dullness.Flat /= built;
  dullness.Equal /= built;
  dullness.Unsolvable = 1 - static_cast<double>(built) / builds;
  return dullness;
}

}  // namespace

void PrintVariety() {
  std::printf(
      "Of boards by Auto, Variable, in per cent: flat ones, the cells with their most frequent "
      "number,\nthe boards with the base in their dullest cell, the builds without a solution\n");
  for (const int remainder : {0, 1}) {
    std::printf("\nsum = base x order + %d\n%5s", remainder, "order");
    for (const int base : kBases)
      std::printf("%14s %2d", "base", base);
    std::printf("\n");
    for (const int order : kOrdersOfVariety) {
      std::printf("%5d", order);
      for (const int base : kBases) {
        const Dullness dullness = DullnessAt(order, base, remainder);
        std::printf("  %3.0f %3.0f %3.0f %2.0f", 100 * dullness.Flat, 100 * dullness.Equal,
                    100 * dullness.StuckCell, 100 * dullness.Unsolvable);
      }
      std::printf("\n");
    }
  }
}

}  // namespace numorra::bench
