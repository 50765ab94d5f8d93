#include "generate/walk.h"

#include <algorithm>

#include "app/board/board.h"
#include "app/board/orders.h"
#include "generate/blocks.h"
#include "generate/stepping.h"

namespace numorra {
namespace {

/// Counts from 0, modulo n.
int Wrapped(int line, int n) {
  return ((line % n) + n) % n;
}

struct Cell {
  int Row;
  int Column;
  bool operator==(const Cell&) const = default;
};

Place PlaceOf(Cell cell) {
  return {cell.Row + 1, cell.Column + 1};
}

/// A square of the numbers 1 to n x n and where each of them stands.
class Numbers {
 public:
  Numbers(int order, const std::vector<double>& numbers)
      : n_(order), numbers_(numbers), cells_(numbers.size() + 1, Cell{-1, -1}) {
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const double number = numbers[i];
      if (number < 1 || number > static_cast<double>(numbers.size())) continue;
      cells_[static_cast<std::size_t>(number)] = {static_cast<int>(i) / n_,
                                                  static_cast<int>(i) % n_};
    }
    isNormal_ =
        std::none_of(cells_.begin() + 1, cells_.end(), [](Cell cell) { return cell.Row < 0; });
  }

  int Order() const { return n_; }
  bool IsNormal() const { return isNormal_; }
  Cell CellOf(int number) const { return cells_[static_cast<std::size_t>(number)]; }
  int At(Cell cell) const { return static_cast<int>(numbers_[IndexOf(PlaceOf(cell), n_)]); }

 private:
  int n_;
  const std::vector<double>& numbers_;
  std::vector<Cell> cells_;
  bool isNormal_ = false;
};

/// One line on or back, with wrap-around: -1, 0 or 1; 2 for any other distance.
int StepBetween(int from, int to, int n) {
  for (const int step : {-1, 0, 1}) {
    if (Wrapped(from + step, n) == to) return step;
  }
  return 2;
}

struct Steps {
  Cell Diagonal;
  Cell Break;
};

/// The steps by which an odd square goes from number to number, where it does.
std::optional<Steps> SteppingOf(const Numbers& square) {
  const int n = square.Order();
  const auto between = [&](int a, int b) {
    const Cell from = square.CellOf(a);
    const Cell to = square.CellOf(b);
    return Cell{StepBetween(from.Row, to.Row, n), StepBetween(from.Column, to.Column, n)};
  };
  const Steps steps{between(1, 2), between(n, n + 1)};
  const bool diagonal = std::abs(steps.Diagonal.Row) == 1 && std::abs(steps.Diagonal.Column) == 1;
  const bool straight = std::abs(steps.Break.Row) + std::abs(steps.Break.Column) == 1;
  if (!diagonal || !straight) return std::nullopt;
  for (int number = 1; number < n * n; ++number) {
    if (between(number, number + 1) != (number % n == 0 ? steps.Break : steps.Diagonal)) {
      return std::nullopt;
    }
  }
  return steps;
}

std::string Direction(Cell step) {
  const std::string rows = step.Row < 0 ? "up" : step.Row > 0 ? "down" : "";
  const std::string columns = step.Column < 0   ? "to the left"
                              : step.Column > 0 ? "to the right"
                                                : "";
  return rows + (rows.empty() || columns.empty() ? "" : " and ") + columns;
}

std::string Side(Cell step) {
  if (step.Row != 0) return step.Row < 0 ? "above" : "below";
  return step.Column < 0 ? "to the left of" : "to the right of";
}

/// "out of the board at the top, so in at the bottom", or nothing for a step that stays inside.
std::string Leaving(Cell from, Cell step, int n) {
  std::string leaving;
  const auto add = [&](int line, int moved, const char* low, const char* high) {
    if (line + moved >= 0 && line + moved < n) return;
    leaving += std::string(", out of the board ") + (moved < 0 ? low : high) + ", so in " +
               (moved < 0 ? high : low);
  };
  add(from.Row, step.Row, "at the top", "at the bottom");
  add(from.Column, step.Column, "on the left", "on the right");
  return leaving;
}

/// The sentence on number > 1, which comes from the cell of the one before.
std::string MoveSentence(const Numbers& square, const Steps& steps, int number) {
  const int n = square.Order();
  const Cell from = square.CellOf(number - 1);
  const std::string said = std::to_string(number);
  if ((number - 1) % n != 0) {
    return said + " goes " + Direction(steps.Diagonal) + Leaving(from, steps.Diagonal, n);
  }
  const Cell wanted{Wrapped(from.Row + steps.Diagonal.Row, n),
                    Wrapped(from.Column + steps.Diagonal.Column, n)};
  return said + " finds " + std::to_string(square.At(wanted)) + " in its way " +
         Direction(steps.Diagonal) + ", so it goes " + Side(steps.Break) + " " +
         std::to_string(number - 1) + Leaving(from, steps.Break, n);
}

std::vector<WalkStep> WalkOdd(const Numbers& square) {
  const auto steps = SteppingOf(square);
  if (!steps) return {};
  const int n = square.Order();
  std::vector<WalkStep> walk;
  for (int number = 1; number <= n * n; ++number) {
    const Place here = PlaceOf(square.CellOf(number));
    WalkStep step{{{here, std::to_string(number)}}, {here}, {}, {}, number};
    if (number == 1) {
      step.Sentence = "1 goes to " + NameOf(here);
    } else {
      step.Arrow = {PlaceOf(square.CellOf(number - 1)), here};
      step.Sentence = MoveSentence(square, *steps, number);
    }
    walk.push_back(std::move(step));
  }
  return walk;
}

/// (i, j) of a square after so many quarter turns clockwise.
Cell Turned(Cell cell, int turns, int n) {
  for (; turns > 0; --turns)
    cell = {cell.Column, n - 1 - cell.Row};
  return cell;
}

/// How often the construction for orders 4k has to be turned to give the square.
std::optional<int> QuarterTurnsOf(const Numbers& square) {
  const int n = square.Order();
  for (int turns = 0; turns < 4; ++turns) {
    bool same = true;
    for (int i = 0; i < n * n && same; ++i) {
      const Cell cell{i / n, i % n};
      const int number = OnBlockDiagonal(cell.Row, cell.Column) ? n * n - i : i + 1;
      same = square.At(Turned(cell, turns, n)) == number;
    }
    if (same) return turns;
  }
  return std::nullopt;
}

std::vector<WalkStep> WalkDoublyEven(const Numbers& square) {
  const auto turns = QuarterTurnsOf(square);
  if (!turns) return {};
  const int n = square.Order();
  const auto placeOf = [&](Cell cell) { return PlaceOf(Turned(cell, *turns, n)); };
  constexpr const char* kFrom[] = {"from the left", "from the top down", "from the right",
                                   "from the bottom up"};
  std::vector<WalkStep> walk;
  std::vector<Place> marked;
  for (int row = 0; row < n; ++row) {
    WalkStep step;
    for (int column = 0; column < n; ++column) {
      const Place place = placeOf({row, column});
      step.Written.emplace_back(place, std::to_string(row * n + column + 1));
      step.Marked.push_back(place);
      if (OnBlockDiagonal(row, column)) marked.push_back(place);
    }
    const Place first = step.Marked.front();
    step.Sentence = (*turns % 2 == 0 ? "row " + std::to_string(first.Row)
                                     : "column " + std::to_string(first.Column)) +
                    " takes " + std::to_string(row * n + 1) + " to " + std::to_string(row * n + n) +
                    ", " + kFrom[*turns];
    walk.push_back(std::move(step));
  }
  walk.push_back(
      {{}, marked, {}, "the cells on the two diagonals of every 4 x 4 block are marked", 0});
  for (int i = 0; i < n * n / 2; ++i) {
    const Cell cell{i / n, i % n};
    if (!OnBlockDiagonal(cell.Row, cell.Column)) continue;
    const Place here = placeOf(cell);
    const Place there = placeOf({n - 1 - cell.Row, n - 1 - cell.Column});
    const std::string small = std::to_string(i + 1);
    const std::string large = std::to_string(n * n - i);
    walk.push_back({{{here, large}, {there, small}},
                    {here, there},
                    std::pair(there, here),
                    small + " and " + large + ", opposite each other, change places",
                    0});
  }
  return walk;
}

Place PlaceInBlock(Cell block, int place) {
  return {2 * block.Row + place / 2 + 1, 2 * block.Column + place % 2 + 1};
}

std::vector<Place> PlacesOfBlock(Cell block) {
  return {PlaceInBlock(block, 0), PlaceInBlock(block, 1), PlaceInBlock(block, 2),
          PlaceInBlock(block, 3)};
}

void WriteLetter(WalkStep& step, Cell block, const LuxLetter& letter) {
  for (const Place place : PlacesOfBlock(block))
    step.Written.emplace_back(place, std::string(1, letter.Name));
}

std::vector<WalkStep> WalkLux(const Numbers& square) {
  const int m = square.Order() / 2;
  const int k = (m - 1) / 2;
  std::vector<double> odd;
  for (int block = 0; block < m * m; ++block) {
    const Cell at{block / m, block % m};
    const Place first = PlaceInBlock(at, LuxLetterAt(at.Row, at.Column, m).Places[0]);
    odd.push_back((square.At({first.Row - 1, first.Column - 1}) + 3) / 4.0);
  }
  const Numbers blocks(m, odd);
  if (!blocks.IsNormal()) return {};
  const auto steps = SteppingOf(blocks);
  if (!steps) return {};

  WalkStep letters{{}, {}, {}, "", 0};
  for (int block = 0; block < m * m; ++block)
    WriteLetter(letters, {block / m, block % m}, LuxLetterOfRow(block / m, m));
  letters.Sentence = "every block of four cells gets a letter: " + std::to_string(k + 1) +
                     " rows of L, one of U, " +
                     (k == 1 ? "none of X" : std::to_string(k - 1) + " of X");
  WalkStep exchange{{}, {}, {}, "in the middle an L and the U below it change places", 0};
  for (const Cell block : {Cell{k, k}, Cell{k + 1, k}}) {
    WriteLetter(exchange, block, LuxLetterAt(block.Row, block.Column, m));
    const std::vector<Place> places = PlacesOfBlock(block);
    exchange.Marked.insert(exchange.Marked.end(), places.begin(), places.end());
  }
  std::vector<WalkStep> walk{letters, exchange};
  for (int number = 1; number <= m * m; ++number) {
    const Cell block = blocks.CellOf(number);
    const LuxLetter& letter = LuxLetterAt(block.Row, block.Column, m);
    WalkStep step{{}, PlacesOfBlock(block), {}, {}, 4 * number - 3};
    for (int i = 0; i < 4; ++i) {
      const Place place = PlaceInBlock(block, letter.Places[static_cast<std::size_t>(i)]);
      if (square.At({place.Row - 1, place.Column - 1}) != 4 * number - 3 + i) return {};
      step.Written.emplace_back(place, std::to_string(4 * number - 3 + i));
    }
    const std::string where = number == 1
                                  ? "1 goes to row " + std::to_string(block.Row + 1) + ", column " +
                                        std::to_string(block.Column + 1) + " of the blocks"
                                  : MoveSentence(blocks, *steps, number);
    if (number > 1) {
      step.Arrow = {PlaceInBlock(blocks.CellOf(number - 1), 0), PlaceInBlock(block, 0)};
    }
    step.Sentence = "block " + where + "; its numbers are " + std::to_string(4 * number - 3) +
                    " to " + std::to_string(4 * number) + ", in the order of the letter " +
                    letter.Name;
    walk.push_back(std::move(step));
  }
  return walk;
}

}  // namespace

std::vector<WalkStep> WalkOf(int order, const std::vector<double>& numbers) {
  if (WhyNoBoardHas(order)) return {};
  const Numbers square(order, numbers);
  if (!square.IsNormal()) return {};
  if (order % 2 == 1) return WalkOdd(square);
  return order % 4 == 0 ? WalkDoublyEven(square) : WalkLux(square);
}

std::vector<double> ExampleToWalk(int order) {
  const auto side = static_cast<std::size_t>(order);
  std::vector<double> numbers(side * side);
  const auto write = [&](int i, int j, double number) {
    numbers[IndexOf(PlaceOf({i, j}), order)] = number;
  };
  const int m = order % 2 == 1 ? order : order / 2;
  if (order % 4 == 0) {
    for (int i = 0; i < order * order; ++i) {
      write(i / order, i % order,
            OnBlockDiagonal(i / order, i % order) ? order * order - i : i + 1);
    }
    return numbers;
  }
  CellTable odd;
  FillByStepping(odd, m, 1, (m + 1) / 2, kSteppings[0]);
  ForEachCell(m, [&](int r, int c) {
    if (m == order) return write(r - 1, c - 1, odd(r, c));
    double number = 4 * odd(r, c) - 3;
    for (const int place : LuxLetterAt(r - 1, c - 1, m).Places) {
      const Place here = PlaceInBlock({r - 1, c - 1}, place);
      write(here.Row - 1, here.Column - 1, number++);
    }
  });
  return numbers;
}

}  // namespace numorra
