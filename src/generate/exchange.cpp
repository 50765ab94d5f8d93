#include "generate/exchange.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

namespace numorra {
namespace {

constexpr double kLowest = 1;

/// The first suitable i = start, start + 1, ... with wrap-around in 1..n, from a random start; 0 if
/// none is.
template <class Suits>
int RandomLine(Random& random, int n, Suits suits) {
  const int start = random.Between(0, n - 1);
  for (int step = 0; step < n; ++step) {
    const int line = 1 + (start + step) % n;
    if (suits(line)) return line;
  }
  return 0;
}

/// Adds a rectangle through the cell to the pattern; false if there is none.
bool AddRectangle(PatternedSquare& square, Pattern& pattern, int row, int column, int weight) {
  const int n = square.Order();
  const auto offDiagonals = [n](int r, int c) { return r != c && r + c != n + 1; };
  int y = 0;
  const int x = RandomLine(square.TheRandom(), n, [&](int across) {
    if (across == column || !offDiagonals(row, across)) return false;
    y = RandomLine(square.TheRandom(), n, [&](int down) {
      return down != row && offDiagonals(down, column) && offDiagonals(down, across);
    });
    return y != 0;
  });
  if (x == 0) return false;
  pattern.Add(row, column, weight);
  pattern.Add(y, x, weight);
  pattern.Add(row, x, -weight);
  pattern.Add(y, column, -weight);
  return true;
}

/// Corrects the diagonal through (row, column) with a rectangle that has -1 at another of its
/// cells, given by columnOf(row), but not at the centre or (1, 1).
template <class ColumnOf>
bool Compensate(PatternedSquare& square, Pattern& pattern, int row, ColumnOf columnOf) {
  const int n = square.Order();
  const int other = RandomLine(square.TheRandom(), n, [&](int line) {
    const bool centre = 2 * line == n + 1;
    const bool first = line == 1 && columnOf(line) == 1;
    return line != row && !centre && !first;
  });
  return other != 0 && AddRectangle(square, pattern, other, columnOf(other), -1);
}

Pattern RectanglesAt(PatternedSquare& square, int row, int column) {
  const int n = square.Order();
  Pattern pattern;
  bool built = AddRectangle(square, pattern, row, column, 1);
  if (row == column) {
    built = built && Compensate(square, pattern, row, [](int i) { return i; });
  }
  if (row + column == n + 1) {
    built = built && Compensate(square, pattern, row, [n](int i) { return n + 1 - i; });
  }
  return built ? pattern : Pattern();
}

/// All patterns of -1, 0 and 1 of order 4. Seven cells are free; the others follow from the lines.
std::vector<Pattern> FindPatternsOfOrder4() {
  constexpr int kChoices = 3 * 3 * 3 * 3 * 3 * 3 * 3;
  std::vector<Pattern> patterns;
  for (int choice = 0; choice < kChoices; ++choice) {
    int left = choice;
    const auto next = [&left] { return std::exchange(left, left / 3) % 3 - 1; };
    int a[4][4] = {};
    for (int column = 0; column < 3; ++column)
      a[0][column] = next();
    a[0][3] = -a[0][0] - a[0][1] - a[0][2];
    a[3][0] = next();
    a[3][3] = -a[3][0] + a[0][1] + a[0][2];  // the corners add up to minus the edge cells between
    a[3][1] = next();
    a[3][2] = -a[3][0] - a[3][1] - a[3][3];
    a[1][1] = next();
    a[2][1] = -a[0][1] - a[1][1] - a[3][1];
    a[2][2] = -a[0][0] - a[1][1] - a[3][3];
    a[1][2] = -a[0][2] - a[2][2] - a[3][2];
    a[1][0] = next();
    a[2][0] = -a[0][0] - a[1][0] - a[3][0];
    a[1][3] = -a[1][0] - a[1][1] - a[1][2];
    a[2][3] = -a[2][0] - a[2][1] - a[2][2];
    Pattern pattern;
    bool small = true;
    for (int row = 0; row < 4; ++row) {
      for (int column = 0; column < 4; ++column) {
        small = small && std::abs(a[row][column]) <= 1;
        if (a[row][column] != 0) pattern.Add(row + 1, column + 1, a[row][column]);
      }
    }
    if (small && pattern.begin() != pattern.end()) patterns.push_back(pattern);
  }
  return patterns;
}

/// The weight that a pattern gives a cell.
int WeightAt(const Pattern& pattern, int row, int column) {
  for (const FlaggedCell& cell : pattern) {
    if (cell.Row == row && cell.Column == column) return cell.Weight;
  }
  return 0;
}

Pattern PatternOfOrder4At(Random& random, int row, int column) {
  static const std::vector<Pattern> patterns = FindPatternsOfOrder4();
  const bool corner = row == 1 && column == 1;
  const auto count = static_cast<int>(patterns.size());
  const int found = RandomLine(random, count, [&](int place) {
    const Pattern& pattern = patterns[static_cast<std::size_t>(place - 1)];
    return WeightAt(pattern, row, column) == 1 && (corner || WeightAt(pattern, 1, 1) == 0);
  });
  return found == 0 ? Pattern() : patterns[static_cast<std::size_t>(found - 1)];
}

/// A random factor of the range, not 0 if there is another.
int AnyButZero(const FactorRange& range, Random& random) {
  if (range.Low == range.High) return 0;
  const int factor = random.Between(range.Low, range.High - 1);
  return factor < 0 ? factor : factor + 1;
}

/// The numbers 1..count in random order.
std::vector<int> ShuffledLines(Random& random, int count) {
  std::vector<int> lines(static_cast<std::size_t>(count));
  std::iota(lines.begin(), lines.end(), 1);
  Shuffle(std::span(lines), random);
  return lines;
}

}  // namespace

Pattern ExchangeAt(PatternedSquare& square, int row, int column) {
  return square.Order() == 4 ? PatternOfOrder4At(square.TheRandom(), row, column)
                             : RectanglesAt(square, row, column);
}

FactorRange ExchangeRange(const PatternedSquare& square, const Pattern& pattern) {
  double low = -32768;
  double high = 32767;
  for (const FlaggedCell& cell : pattern) {
    if (cell.Weight == 0) continue;
    const double value = square(cell.Row, cell.Column);
    const double toLowest = (kLowest - value) / cell.Weight;
    (cell.Weight > 0 ? low : high) =
        cell.Weight > 0 ? std::max(low, toLowest) : std::min(high, toLowest);
    if (!square.LimitToNine()) continue;
    const double toHighest = (kHighestLimited - value) / cell.Weight;
    (cell.Weight > 0 ? high : low) =
        cell.Weight > 0 ? std::min(high, toHighest) : std::max(low, toHighest);
  }
  return {static_cast<int>(std::min(0.0, std::ceil(low))),
          static_cast<int>(std::max(0.0, std::floor(high)))};
}

void VaryCell(PatternedSquare& square, int row, int column) {
  const Pattern pattern = ExchangeAt(square, row, column);
  if (pattern.begin() == pattern.end()) return;
  const FactorRange range = ExchangeRange(square, pattern);
  const double eighth = (range.High - range.Low) / 8.0;
  const int low = static_cast<int>(std::ceil(range.Low + eighth));
  const int high = static_cast<int>(std::floor(range.High - eighth));
  square.Apply(pattern, low < high ? square.TheRandom().Between(low, high)
                                   : AnyButZero(range, square.TheRandom()));
}

void OddSizePass(PatternedSquare& square) {
  const int n = square.Order();
  const int middle = (n + 1) / 2;
  for (const int line : ShuffledLines(square.TheRandom(), n)) {
    VaryCell(square, middle, line);
    VaryCell(square, line, middle);
  }
}

void ThirdCornerPass(PatternedSquare& square, bool keepCorner) {
  const int n = square.Order();
  for (const int row : ShuffledLines(square.TheRandom(), n)) {
    for (int column = 1; column <= n; ++column) {
      if (!keepCorner || row != 1 || column != 1) VaryCell(square, row, column);
    }
  }
}

}  // namespace numorra
