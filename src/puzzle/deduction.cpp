#include "puzzle/deduction.h"

#include <algorithm>

namespace numorra {
namespace {

std::string LineName(const Candidates& board, int line) {
  return board.Map().NameOf(line);
}

std::string PlaceName(const Candidates& board, int cell) {
  return NameOf(PlaceAt(cell, board.Order()));
}

std::vector<Place> PlacesOf(const Candidates& board, const std::vector<int>& cells) {
  std::vector<Place> places;
  places.reserve(cells.size());
  for (const int cell : cells)
    places.push_back(PlaceAt(cell, board.Order()));
  return places;
}

std::vector<Place> PlaceOf(const Candidates& board, int cell) {
  return PlacesOf(board, {cell});
}

std::optional<Deduction> SingleGap(const Puzzle& puzzle, const Candidates& board) {
  for (int line = 0; line < board.Map().Lines(); ++line) {
    const std::vector<int> gaps = board.GapsOf(line);
    if (gaps.size() != 1 || !board.Allows(gaps[0], board.Rest(line))) continue;
    const std::size_t others = board.Map().CellsOf(line).size() - 1;
    const std::string stand = others == 1 ? " number is in " : " numbers are in ";
    return Deduction{gaps[0],
                     board.Rest(line),
                     Grade::Easy,
                     PlacesOf(board, board.Map().CellsOf(line)),
                     LineName(board, line),
                     std::to_string(others) + stand + LineName(board, line) + ", the total is " +
                         std::to_string(board.Map().SumOf(line, puzzle.Target)) +
                         ": the last one is " + std::to_string(board.Rest(line))};
  }
  return std::nullopt;
}

/// The numbers that a line allows in one of its gaps, and the words that say so.
struct LineTakes {
  std::vector<std::int64_t> Numbers;
  std::string Said;
};

std::string Range(std::int64_t low, std::int64_t high) {
  return low == high ? std::to_string(low) : std::to_string(low) + " to " + std::to_string(high);
}

/// Those of `numbers` that the line allows in `cell`, given the narrowed candidates of its other
/// gaps. A single other gap has one candidate.
LineTakes Taken(const Candidates& board, int line, int cell,
                const std::vector<std::int64_t>& numbers) {
  std::vector<int> others = board.GapsOf(line);
  std::erase(others, cell);
  const std::int64_t rest = board.Rest(line);
  LineTakes takes;
  if (others.size() == 1) {
    const std::int64_t held = board.Low(others[0]);
    takes.Numbers = {rest - held};
    takes.Said = LineName(board, line) + " needs " + std::to_string(rest) + " for this cell and " +
                 PlaceName(board, others[0]) + ", which can hold " + std::to_string(held);
    return takes;
  }
  const auto sumOf = [&](auto boundOf) {
    std::vector<std::int64_t> bounds;
    bounds.reserve(others.size());
    for (const int other : others)
      bounds.push_back(boundOf(other));
    return LeastSum(std::move(bounds), board.IsNormal());
  };
  const std::int64_t high = rest - sumOf([&](int other) { return board.Low(other); });
  const std::int64_t low = rest + sumOf([&](int other) { return -board.High(other); });
  for (const std::int64_t number : numbers) {
    if (number >= low && number <= high) takes.Numbers.push_back(number);
  }
  takes.Said = LineName(board, line) + " needs " + std::to_string(rest) + " for its " +
               std::to_string(others.size() + 1) + " gaps, so this cell can hold " +
               Range(std::max<std::int64_t>(1, low), high);
  return takes;
}

/// The lines that narrow a gap down to one number, strongest first.
std::string WhyOnly(const Candidates& board, int cell, std::int64_t number,
                    std::vector<std::int64_t> numbers) {
  std::string why;
  while (numbers.size() > 1) {
    LineTakes best;
    for (const int line : board.Map().LinesOf(cell)) {
      LineTakes takes = Taken(board, line, cell, numbers);
      if (takes.Numbers.size() < (best.Said.empty() ? numbers.size() : best.Numbers.size())) {
        best = std::move(takes);
      }
    }
    if (best.Said.empty()) break;  // the remaining numbers are ruled out by other cells
    why += (why.empty() ? "" : "; ") + best.Said;
    numbers = std::move(best.Numbers);
  }
  const std::string which = board.IsNormal() ? "of the missing numbers only " : "only ";
  return (why.empty() ? "" : why + ": ") + which + std::to_string(number) + " fits " +
         PlaceName(board, cell);
}

/// The missing numbers; under the positive rules, all numbers that the cell could hold at first.
std::vector<std::int64_t> NumbersFor(const Puzzle& puzzle, const Candidates& board, int cell) {
  constexpr std::int64_t kMostListed = 10'000;
  std::vector<std::int64_t> numbers;
  if (!board.IsNormal()) {
    for (std::int64_t number = 1; number <= std::min(puzzle.Most(), kMostListed); ++number)
      numbers.push_back(number);
    return numbers;
  }
  const Candidates fresh(puzzle);
  for (std::int64_t number = 1; number <= puzzle.Most(); ++number) {
    if (fresh.Allows(cell, number)) numbers.push_back(number);
  }
  return numbers;
}

/// A gap with one candidate, or a number with one possible cell, after the rules of the grade.
std::optional<Deduction> OnePossibility(const Puzzle& puzzle, Grade grade) {
  Candidates board(puzzle);
  if (!board.Narrow(grade)) return std::nullopt;
  for (int cell = 0; cell < board.Cells(); ++cell) {
    if (board.Value(cell) != 0 || board.Count(cell) != 1) continue;
    const std::int64_t number = board.Low(cell);
    return Deduction{cell,
                     number,
                     grade,
                     PlaceOf(board, cell),
                     PlaceName(board, cell),
                     WhyOnly(board, cell, number, NumbersFor(puzzle, board, cell))};
  }
  Candidates::Single single;
  if (!board.IsNormal() || !board.FindSinglePlace(single) || single.Cell < 0) return std::nullopt;
  return Deduction{single.Cell,
                   single.Number,
                   grade,
                   PlaceOf(board, single.Cell),
                   PlaceName(board, single.Cell),
                   std::to_string(single.Number) + " fits only " + PlaceName(board, single.Cell) +
                       ": the lines of every other gap rule it out"};
}

/// A gap where all candidates but one lead to a contradiction.
std::optional<Deduction> Tried(const Puzzle& puzzle, Yielding& yielding) {
  constexpr std::int64_t kMostTried = 12;
  Candidates board(puzzle);
  if (!board.Propagate(Grade::Hard)) return std::nullopt;
  for (std::int64_t count = 2; count <= kMostTried; ++count) {
    for (int cell = 0; cell < board.Cells(); ++cell) {
      if (board.Value(cell) != 0 || board.Count(cell) != count) continue;
      std::vector<std::int64_t> possible;
      for (std::int64_t number = board.Low(cell); number <= board.High(cell); ++number) {
        if (!board.Allows(cell, number)) continue;
        yielding.Yield();
        const std::size_t mark = board.Mark();
        if (board.Put(cell, number) && board.Propagate(Grade::Hard)) possible.push_back(number);
        board.UndoTo(mark);
      }
      if (possible.size() == 1) {
        return Deduction{cell,
                         possible[0],
                         Grade::Expert,
                         PlaceOf(board, cell),
                         PlaceName(board, cell),
                         WhyTried(board, cell, possible[0])};
      }
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> NextDeduction(const Puzzle& puzzle, Grade most, Yielding& yielding) {
  {
    Candidates board(puzzle);
    if (auto step = SingleGap(puzzle, board)) return step;
  }
  for (const Grade grade : {Grade::Medium, Grade::Hard}) {
    if (grade > most) return std::nullopt;
    if (auto step = OnePossibility(puzzle, grade)) return step;
  }
  return most == Grade::Expert ? Tried(puzzle, yielding) : std::nullopt;
}

std::string WhyTried(const Candidates& candidates, int cell, std::int64_t number) {
  return "trying any number but " + std::to_string(number) + " in " + PlaceName(candidates, cell) +
         " leads to a line that cannot be completed";
}

}  // namespace numorra
