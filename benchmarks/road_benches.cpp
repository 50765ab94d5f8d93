#include "benches.h"
#include "puzzle/deduction.h"
#include "puzzle/fresh_square.h"
#include "puzzle/making.h"
#include "puzzle/search.h"
#include "study/report.h"
#include "study/special.h"

namespace numorra::bench {
namespace {

/// A bordered square takes the longest, because its rings are studied too.
void StudySquare(benchmark::State& state) {
  TickingClock time(7);
  ClockSeededRandom random(time);
  const NumberSquare square(BorderedSquare(50, random));
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

template <Grade Wanted>
void MakePuzzleOfOrder8(benchmark::State& state) {
  TickingClock time(7);
  ClockSeededRandom random(time);
  SilentStage stage;
  const Puzzle square = *FreshSquare({8}, random, stage);
  for (auto _ : state)
    benchmark::DoNotOptimize(MakePuzzle(square, {Wanted}, random, stage));
}

void FindHint(benchmark::State& state) {
  TickingClock time(7);
  ClockSeededRandom random(time);
  SilentStage stage;
  const auto made = MakePuzzle(*FreshSquare({8}, random, stage), {Grade::Hard}, random, stage);
  const Puzzle& puzzle = std::get<MadePuzzle>(made).Clues;
  for (auto _ : state)
    benchmark::DoNotOptimize(NextDeduction(puzzle, Grade::Expert, stage));
}

struct Measured {
  Road TheRoad;
  void (*Measure)(benchmark::State& state);
};

constexpr Measured kRoads[] = {
    {{"study of a bordered square of order 50", 0.05}, StudySquare},
    {{"filling a board of order 8, 70 % given, one solution", 1}, FillBoard},
    {{"making a hard puzzle of order 8", 1}, MakePuzzleOfOrder8<Grade::Hard>},
    {{"making an expert puzzle of order 8", 50}, MakePuzzleOfOrder8<Grade::Expert>},
    {{"a hint for a hard puzzle of order 8", 1}, FindHint},
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
