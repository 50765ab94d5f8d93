#include <array>
#include <string>
#include <utility>

#include "app/board/board.h"
#include "generate/construction.h"
#include "generate/stepping_moves.h"
#include "words/say.h"

/// Conway's LUX method for orders 4k + 2. An odd square of order m = 2k + 1 is laid over m x m
/// blocks of four cells. Its number a gives its block the numbers 4a - 3 to 4a, in the order of the
/// block's letter:
///
///     4 1     1 4     1 4
///     2 3     2 3     3 2       k + 1 rows of L, one of U, the rest X; in the middle column the
///      L       U       X        last L and the U below it are exchanged
namespace numorra {
namespace {

/// The positions of a block's four numbers in ascending order: 0 upper left, 1 upper right, 2 lower
/// left, 3 lower right.
struct Letter {
  char Name;
  std::array<int, 4> Cells;
};

constexpr Letter kL{'L', {1, 2, 3, 0}};
constexpr Letter kU{'U', {0, 2, 3, 1}};
constexpr Letter kX{'X', {0, 3, 2, 1}};

using FourCells = std::array<Place, 4>;

// Blocks are named by places, too: row and column from 1 to m.

/// The letter of a row of blocks, before the exchange in the middle.
const Letter& LetterOfRow(int row, int m) {
  const int lastL = (m + 1) / 2;
  if (row <= lastL) return kL;
  return row == lastL + 1 ? kU : kX;
}

const Letter& LetterOf(Place block, int m) {
  const int middle = (m + 1) / 2;
  const bool changed = block.Column == middle && (block.Row == middle || block.Row == middle + 1);
  return LetterOfRow(changed ? 2 * middle + 1 - block.Row : block.Row, m);
}

Place CellOf(Place block, int cell) {
  return {2 * block.Row - 1 + cell / 2, 2 * block.Column - 1 + cell % 2};
}

FourCells CellsOf(Place block, const std::array<int, 4>& cells = {0, 1, 2, 3}) {
  return {CellOf(block, cells[0]), CellOf(block, cells[1]), CellOf(block, cells[2]),
          CellOf(block, cells[3])};
}

/// The cells of a block in the order of their numbers.
FourCells CellsInOrder(Place block, int m) {
  return CellsOf(block, LetterOf(block, m).Cells);
}

CellTable BuildLux(int order, BuildChoices& choices) {
  const int m = order / 2;
  const CellTable odd = kSteppingConstruction.Build(m, choices);
  choices.StartCount();
  CellTable cells;
  ForEachCell(m, [&](int row, int column) {
    double number = 4 * odd(row, column) - 3;
    for (const Place cell : CellsInOrder({row, column}, m))
      cells(cell.Row, cell.Column) = number++;
  });
  // One step for each L of the first k + 1 rows, each cell of the odd square and each block.
  choices.Count((m + 1) / 2 * m + 2 * m * m);
  return cells;
}

/// The odd square on which a square is based, from the first number of each block.
PlacedNumbers OddSquareUnder(const PlacedNumbers& square) {
  const int m = square.Order() / 2;
  return PlacedNumbers(SquareOf(
      m, [&](int cell) { return (square.At(CellsInOrder(PlaceAt(cell, m), m)[0]) + 3) / 4.0; }));
}

void WriteLetter(WalkStep& step, Place block, const Letter& letter) {
  for (const Place cell : CellsOf(block))
    step.Written.emplace_back(cell, std::string(1, letter.Name));
}

WalkStep LettersByRow(int m) {
  WalkStep step;
  ForEachCell(m, [&](int row, int column) {
    WriteLetter(step, {row, column}, LetterOfRow(row, m));
  });
  step.Sentence =
      m == 3
          ? Say("every block of four cells gets a letter: 2 rows of L, one of U, none of X")
          : SayCounted("every block of four cells gets a letter: %1 row of L, one of U, %2 of X",
                       "every block of four cells gets a letter: %1 rows of L, one of U, %2 of X",
                       (m + 1) / 2, (m - 3) / 2);
  return step;
}

WalkStep ExchangeInTheMiddle(int m) {
  WalkStep step;
  const int middle = (m + 1) / 2;
  for (const Place block : {Place{middle, middle}, Place{middle + 1, middle}}) {
    WriteLetter(step, block, LetterOf(block, m));
    const FourCells cells = CellsOf(block);
    step.Marked.insert(step.Marked.end(), cells.begin(), cells.end());
  }
  step.Sentence = Say("in the middle an L and the U below it change places");
  return step;
}

/// The letters, the exchange of two of them, then one block of four numbers per step.
std::vector<WalkStep> StepsOfLux(const PlacedNumbers& square) {
  const PlacedNumbers blocks = OddSquareUnder(square);
  if (!blocks.IsNormal()) return {};
  const auto moves = MovesOf(blocks);
  if (!moves) return {};
  const int m = blocks.Order();
  std::vector<WalkStep> walk{LettersByRow(m), ExchangeInTheMiddle(m)};
  for (int number = 1; number <= m * m; ++number) {
    const Place block = blocks.PlaceOf(number);
    const FourCells cells = CellsOf(block);
    const int first = 4 * number - 3;
    WalkStep step{{}, {cells.begin(), cells.end()}, {}, {}, first};
    int next = first;
    for (const Place cell : CellsInOrder(block, m)) {
      if (square.At(cell) != next) return {};
      step.Written.emplace_back(cell, std::to_string(next++));
    }
    if (number > 1) step.Arrow = {CellOf(blocks.PlaceOf(number - 1), 0), cells[0]};
    // Translators: "row 1, column 2 of the blocks"
    const std::string move = number == 1
                                 ? Say("block 1 goes to %1 of the blocks", NameOf(block))
                                 : MoveSentence(blocks, *moves, number, Say("block %1", number));
    // Translators: %1 tells where a block goes: "block 2 goes up and to the right"
    step.Sentence = Say("%1; its numbers are %2 to %3, in the order of the letter %4", move, first,
                        first + 3, std::string(1, LetterOf(block, m).Name));
    walk.push_back(std::move(step));
  }
  return walk;
}

}  // namespace

const Construction kLuxConstruction = {
    "lux",
    "BuildLuxx",
    Mark("L&UX"),
    Mark("John Conway"),
    [](int order) -> std::string {
      if (order > 0 && order % 4 == 2) return {};
      return Say("LUX makes the orders 6, 10, 14 and so on, not %1", order);
    },
    BuildLux,
    StepsOfLux};

}  // namespace numorra
