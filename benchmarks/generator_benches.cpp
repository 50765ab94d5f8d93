#include "app/board/board.h"
#include "benches.h"
#include "generate/normal_square.h"
#include "generate/variable_square.h"
#include "transform/turning_square.h"

namespace numorra::bench {
namespace {

struct Workshop {
  TickingClock Time{7};
  ClockSeededRandom TheRandom{Time};
  SilentStage Stage;
  NormalSquare Normal{TheRandom, Stage};
  VariableSquare Variable{TheRandom, Stage};
};

VariablePlan PlanFor(int order) {
  return PlanVariableSquare(order, 60 * order, false, false);
}

void BuildAllNormal(benchmark::State& state) {
  Workshop shop;
  for (auto _ : state) {
    for (int order = 3; order <= kMaxOrder; ++order) {
      benchmark::DoNotOptimize(shop.Normal.Build(order));
    }
  }
}

void BuildNormal(benchmark::State& state, int order) {
  Workshop shop;
  for (auto _ : state)
    benchmark::DoNotOptimize(shop.Normal.Build(order));
}

void BuildVariable(benchmark::State& state, int order) {
  Workshop shop;
  const VariablePlan plan = PlanFor(order);
  for (auto _ : state)
    benchmark::DoNotOptimize(shop.Variable.Build(plan, {}, 1));
}

/// Applies an eight-cell pattern as often as a build does, each time with a random multiplier: the
/// minimum work of any method that builds by patterns.
void AddPatterns(benchmark::State& state, int order) {
  Workshop shop;
  const int applications = shop.Variable.Build(PlanFor(order), {}, 1).PassCount;
  TurningSquare square(order);
  square.Fill(60);
  Pattern pattern;
  for (int i = 1; i <= 4; ++i) {
    pattern.Add(i, 1 + i % 4, 1);
    pattern.Add(i, 1 + (i + 1) % 4, -1);
  }
  for (auto _ : state) {
    for (int i = 0; i < applications; ++i) {
      const double factor = shop.TheRandom.Between(-2, 2);
      double lowest = 9999;
      for (const FlaggedCell& cell : pattern) {
        lowest = std::min(lowest, square(cell.Row, cell.Column) + factor * cell.Weight);
      }
      if (lowest < 1) continue;
      for (const FlaggedCell& cell : pattern) {
        square(cell.Row, cell.Column) += factor * cell.Weight;
      }
    }
    benchmark::DoNotOptimize(square);
  }
}

}  // namespace

void RegisterGeneratorBenches() {
  benchmark::RegisterBenchmark(kAllNormal, BuildAllNormal);
  for (const int order : kOrders) {
    benchmark::RegisterBenchmark(At("normal generator", order).c_str(), BuildNormal, order);
    benchmark::RegisterBenchmark(At(kVariable, order).c_str(), BuildVariable, order);
    benchmark::RegisterBenchmark(At(kArithmetic, order).c_str(), AddPatterns, order);
  }
}

}  // namespace numorra::bench
