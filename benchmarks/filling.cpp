#include <chrono>
#include <cstdio>
#include <numeric>
#include <vector>

#include "app/board/board.h"
#include "benches.h"
#include "generate/normal_square.h"
#include "puzzle/search.h"

namespace numorra::bench {
namespace {

constexpr int kBoards = 20;
constexpr double kSeconds = 3;

/// A normal square with `share` per cent of its numbers, chosen at random.
Puzzle BoardWithGaps(int order, int share, NormalSquare& squares, Random& random) {
  Puzzle puzzle{Square<std::int64_t>(SquareOf(squares.Build(order), order)), NormalTotal(order)};
  std::vector<int> cells(static_cast<std::size_t>(puzzle.Cells.Size()));
  std::iota(cells.begin(), cells.end(), 0);
  Shuffle(std::span(cells), random);
  cells.resize(cells.size() - cells.size() * static_cast<std::size_t>(share) / 100);
  for (const int cell : cells)
    puzzle.Cells[cell] = 0;
  return puzzle;
}

}  // namespace

void PrintFilling() {
  std::printf(
      "Of %d normal boards, in per cent: settled within %g s (of these with one solution), and the "
      "median of the seconds\n%-8s",
      kBoards, kSeconds, "clues");
  for (int order = 5; order <= 10; ++order)
    std::printf("      order %2d     ", order);
  TickingClock clock(5);
  ClockSeededRandom random(clock);
  SilentStage stage;
  NormalSquare squares(random, stage);
  for (const int share : {10, 20, 30, 40, 50, 60, 70, 80}) {
    std::printf("\n%3d %%   ", share);
    for (int order = 5; order <= 10; ++order) {
      int settled = 0;
      int unique = 0;
      std::vector<double> seconds;
      for (int board = 0; board < kBoards; ++board) {
        const Puzzle puzzle = BoardWithGaps(order, share, squares, random);
        const auto start = std::chrono::steady_clock::now();
        const SearchResult result = Solve(puzzle, {.Seconds = kSeconds}, random, stage);
        seconds.push_back(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        settled += std::holds_alternative<NotSettled>(result) ? 0 : 1;
        unique += std::holds_alternative<OneSolution>(result) ? 1 : 0;
      }
      std::printf("  %3d (%3d) %7.4f", 100 * settled / kBoards, 100 * unique / kBoards,
                  FigureOf(seconds).Median);
      std::fflush(stdout);
    }
  }
  std::printf("\n");
}

Puzzle UniqueBoardOfOrder8() {
  TickingClock clock(8);
  ClockSeededRandom random(clock);
  SilentStage stage;
  NormalSquare squares(random, stage);
  for (;;) {
    Puzzle puzzle = BoardWithGaps(8, 70, squares, random);
    if (std::holds_alternative<OneSolution>(Solve(puzzle, {.Nodes = 1000}, random, stage))) {
      return puzzle;
    }
  }
}

}  // namespace numorra::bench
