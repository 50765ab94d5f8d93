#include <algorithm>
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

/// An empty board but for the numbers 1 to 9 in a block of 3 x 3.
Puzzle BoardWithBlock(int order, Random& random) {
  Puzzle puzzle{Square<std::int64_t>(order), NormalTotal(order)};
  const int row = random.Between(0, order - 3);
  const int column = random.Between(0, order - 3);
  for (int i = 0; i < 9; ++i)
    puzzle.Cells[(row + i / 3) * order + column + i % 3] = i + 1;
  return puzzle;
}

/// What became of the boards of one kind.
struct Filled {
  int Boards = 0;  ///< with a solution, be it the only one or not
  int Settled = 0;
  int Unique = 0;
  std::vector<double> Seconds;

  void Solve(const Puzzle& puzzle, double seconds, Random& random) {
    SilentStage stage;
    const auto start = std::chrono::steady_clock::now();
    const SearchResult result = numorra::Solve(puzzle, {.Seconds = seconds}, random, stage);
    Seconds.push_back(
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    const auto* const open = std::get_if<NotSettled>(&result);
    Boards += !open || open->Found ? 1 : 0;
    Settled += open ? 0 : 1;
    Unique += std::holds_alternative<OneSolution>(result) ? 1 : 0;
  }
};

void PrintLargeBoards(NormalSquare& squares, Random& random) {
  constexpr double kLongSeconds = 10;
  std::printf(
      "\nOf %d large boards, in per cent: filled within %g s (of these shown to have several "
      "solutions), and the median and the most of the seconds; a block: 1 to 9 in 3 x 3 cells\n"
      "%-8s",
      kBoards, kLongSeconds, "clues");
  constexpr int kOrders[] = {16, 20, 30, 50};
  for (const int order : kOrders)
    std::printf("         order %2d        ", order);
  for (const int share : {0, 10, 30, 50, 60, 70}) {
    std::printf(share == 0 ? "\nblock   " : "\n%3d %%   ", share);
    for (const int order : kOrders) {
      Filled filled;
      for (int board = 0; board < kBoards; ++board) {
        filled.Solve(share == 0 ? BoardWithBlock(order, random)
                                : BoardWithGaps(order, share, squares, random),
                     kLongSeconds, random);
      }
      std::printf("  %3d (%3d) %6.2f %6.2f", 100 * filled.Boards / kBoards,
                  100 * filled.Settled / kBoards, FigureOf(filled.Seconds).Median,
                  *std::max_element(filled.Seconds.begin(), filled.Seconds.end()));
      std::fflush(stdout);
    }
  }
  std::printf("\n");
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
      Filled filled;
      for (int board = 0; board < kBoards; ++board)
        filled.Solve(BoardWithGaps(order, share, squares, random), kSeconds, random);
      std::printf("  %3d (%3d) %7.4f", 100 * filled.Settled / kBoards,
                  100 * filled.Unique / kBoards, FigureOf(filled.Seconds).Median);
      std::fflush(stdout);
    }
  }
  std::printf("\n");
  PrintLargeBoards(squares, random);
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
