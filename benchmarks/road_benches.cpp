#include <algorithm>

#include "app/ports/build_stage.h"
#include "benches.h"
#include "count/all_squares.h"
#include "count/order5_count.h"
#include "files/square_json.h"
#include "puzzle/deduction.h"
#include "puzzle/fitting_numbers.h"
#include "puzzle/fresh_puzzle.h"
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

/// 20 numbers of a square of order 20: only the local search fills such a board.
void FillLargeBoard(benchmark::State& state) {
  constexpr int kGiven = 20;
  TickingClock time(7);
  ClockSeededRandom random(time);
  SilentStage stage;
  Puzzle puzzle = *FreshSquare({20}, random, stage);
  std::fill(puzzle.Cells.begin() + kGiven, puzzle.Cells.end(), 0);
  for (auto _ : state)
    benchmark::DoNotOptimize(Solve(puzzle, {}, random, stage));
}

void DrawFreshSquare(benchmark::State& state) {
  TickingClock time(7);
  ClockSeededRandom random(time);
  SilentStage stage;
  for (auto _ : state)
    benchmark::DoNotOptimize(FreshSquare({10}, random, stage));
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

Puzzle PuzzleOfOrder8(Grade wanted) {
  TickingClock time(7);
  ClockSeededRandom random(time);
  SilentStage stage;
  return std::get<MadePuzzle>(MakeFreshPuzzle({8}, {wanted}, random, stage)).Clues;
}

template <Grade Wanted>
void FindHint(benchmark::State& state) {
  SilentStage stage;
  const Puzzle puzzle = PuzzleOfOrder8(Wanted);
  for (auto _ : state)
    benchmark::DoNotOptimize(NextDeduction(puzzle, Grade::Expert, stage));
}

void NoteEveryGap(benchmark::State& state) {
  const Puzzle puzzle = PuzzleOfOrder8(Grade::Hard);
  for (auto _ : state) {
    for (int cell = 0; cell < puzzle.Cells.Size(); ++cell) {
      if (puzzle.Cells[cell] == 0)
        benchmark::DoNotOptimize(FittingNumbers(puzzle, cell, puzzle.Most()));
    }
  }
}

void WriteAndReadJson(benchmark::State& state) {
  TickingClock time(7);
  ClockSeededRandom random(time);
  SilentStage stage;
  const StoredSquare square = StoredSquareOf(*FreshSquare({50}, random, stage), true);
  for (auto _ : state)
    benchmark::DoNotOptimize(ReadSquareJson(JsonOf(square)));
}

void ListSquaresOfOrder4(benchmark::State& state) {
  SilentStage stage;
  for (auto _ : state) {
    int count = 0;
    ForEachSquare({Square<int>(4)}, stage, [&](const Square<int>&) { return ++count > 0; });
    if (count != 880) state.SkipWithError("a wrong number of squares");
  }
}

/// One of the 145,362 parts of the count of order 5.
void CountDiagonalSet(benchmark::State& state) {
  Order5Count order5{Square<int>(5)};
  std::size_t set = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(order5.CountOf(order5.Sets()[set++ % order5.Sets().size()]));
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
    {{"filling a board of order 20 with 20 numbers", 50}, FillLargeBoard},
    {{"a fresh square of order 10", 1}, DrawFreshSquare},
    {{"a hint for a hard puzzle of order 8", 1}, FindHint<Grade::Hard>},
    {{"a hint for an expert puzzle of order 8", 10}, FindHint<Grade::Expert>},
    {{"the notes of all gaps of a hard puzzle of order 8", 1}, NoteEveryGap},
    {{"a square of order 50 to JSON and back", 1}, WriteAndReadJson},
    {{"listing the 880 squares of order 4", 25}, ListSquaresOfOrder4},
    {{"one diagonal set of the count of order 5", 0.2}, CountDiagonalSet},
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
