#include "benches.h"
#include "puzzle/search.h"
#include "study/report.h"
#include "study/special.h"

namespace numorra::bench {
namespace {

/// A bordered square is what takes the longest: its rings are looked at, too.
void StudySquare(benchmark::State& state) {
  TickingClock time(7);
  ClockSeededRandom random(time);
  const NumberSquare square(50, BorderedSquare(50, random));
  for (auto _ : state)
    benchmark::DoNotOptimize(Study(square));
}

void FillBoard(benchmark::State& state) {
  TickingClock time(7);
  ClockSeededRandom random(time);
  SilentStage stage;
  const Puzzle puzzle = UniqueBoardOfOrder8();
  for (auto _ : state)
    benchmark::DoNotOptimize(Solve(puzzle, {}, random, stage));
}

struct Measured {
  Road TheRoad;
  void (*Measure)(benchmark::State& state);
};

constexpr Measured kRoads[] = {
    {{"study of a bordered square of order 50", 0.05}, StudySquare},
    {{"filling a board of order 8, 70 % given, one solution", 1}, FillBoard},
};

}  // namespace

std::vector<Road> RegisterRoadBenches() {
  std::vector<Road> roads;
  for (const Measured& measured : kRoads) {
    benchmark::RegisterBenchmark(measured.TheRoad.Name, measured.Measure);
    roads.push_back(measured.TheRoad);
  }
  return roads;
}

}  // namespace numorra::bench
