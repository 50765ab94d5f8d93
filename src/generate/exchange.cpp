#include "generate/exchange.h"

#include <algorithm>
#include <cmath>

#include "app/board/numbers.h"

namespace numorra {
namespace {

constexpr double kLowest = 1;
constexpr double kHighestLimited = 9;

/// The first i = start, start + 1, ... with wrap-around in 1..n that suits, from a random start; 0
/// when none does.
template <class Suits>
int RandomLine(Random& random, int n, Suits suits) {
  const int start = random.Between(0, n - 1);
  for (int step = 0; step < n; ++step) {
    const int line = 1 + (start + step) % n;
    if (suits(line)) return line;
  }
  return 0;
}

bool AddRectangle(Spreading& spreading, int row, int column, int weight) {
  const int n = spreading.BoardValues.Order();
  const auto offDiagonals = [n](int r, int c) { return r != c && r + c != n + 1; };
  int y = 0;
  const int x = RandomLine(spreading.Dice(), n, [&](int across) {
    if (across == column || !offDiagonals(row, across)) return false;
    y = RandomLine(spreading.Dice(), n, [&](int down) {
      return down != row && offDiagonals(down, column) && offDiagonals(down, across);
    });
    return y != 0;
  });
  if (x == 0) return false;
  spreading.CellFlags.Add(row, column, weight);
  spreading.CellFlags.Add(y, x, weight);
  spreading.CellFlags.Add(row, x, -weight);
  spreading.CellFlags.Add(y, column, -weight);
  return true;
}

/// Puts the diagonal through (row, column) right: a rectangle with -1 at another of its cells,
/// given by columnOf(row), but neither the centre nor (1, 1).
template <class ColumnOf>
bool Compensate(Spreading& spreading, int row, ColumnOf columnOf) {
  const int n = spreading.BoardValues.Order();
  const int other = RandomLine(spreading.Dice(), n, [&](int line) {
    const bool centre = 2 * line == n + 1;
    const bool first = line == 1 && columnOf(line) == 1;
    return line != row && !centre && !first;
  });
  return other != 0 && AddRectangle(spreading, other, columnOf(other), -1);
}

double ValueOf(const Spreading& spreading, const FlaggedCell& cell) {
  return spreading.BoardValues(cell.Row, cell.Column);
}

/// Whole numbers 1..count in random order, through the work list: the lines in the order of their
/// random item data.
void ShuffleLines(Spreading& spreading, ListBoy& order, int count) {
  constexpr double kSpread = 1e6;
  order.Clear();
  for (int line = 1; line <= count; ++line) {
    order.Additem(Decimal(line));
    order.SetItemData(line - 1, Int(spreading.Dice().Next() * kSpread));
  }
  order.SortItemDataAscending();
}

int LineAt(const ListBoy& order, int place) {
  return ToInt16(Val(order.list(place, 0).value_or("")));
}

/// Moves a cell to `wanted` by one exchange where one is found that can go all the way, otherwise
/// by as many as it takes.
void MoveCell(Spreading& spreading, int row, int column, double wanted) {
  constexpr int kDraws = 100;
  constexpr int kDrawsForAllTheWay = 50;
  for (int draw = 0; draw < kDraws; ++draw) {
    const double way = wanted - spreading.BoardValues(row, column);
    if (way == 0 || !BuildExchange(spreading, row, column)) return;
    const FactorRange range = ExchangeRange(spreading);
    const double factor = std::clamp<double>(way, range.Low, range.High);
    if (factor == way || draw >= kDrawsForAllTheWay) {
      spreading.ApplyPattern(static_cast<int>(factor));
    }
  }
}

}  // namespace

bool BuildExchange(Spreading& spreading, int row, int column) {
  const int n = spreading.BoardValues.Order();
  spreading.ClearCellFlags();
  bool built = AddRectangle(spreading, row, column, 1);
  if (row == column) built = built && Compensate(spreading, row, [](int i) { return i; });
  if (row + column == n + 1) {
    built = built && Compensate(spreading, row, [n](int i) { return n + 1 - i; });
  }
  if (!built) spreading.ClearCellFlags();
  return built;
}

FactorRange ExchangeRange(const Spreading& spreading) {
  double low = -32768;
  double high = 32767;
  for (const FlaggedCell& cell : spreading.CellFlags) {
    if (cell.Weight == 0) continue;
    const double toLowest = (kLowest - ValueOf(spreading, cell)) / cell.Weight;
    (cell.Weight > 0 ? low : high) =
        cell.Weight > 0 ? std::max(low, toLowest) : std::min(high, toLowest);
    if (!spreading.LimitToNine) continue;
    const double toHighest = (kHighestLimited - ValueOf(spreading, cell)) / cell.Weight;
    (cell.Weight > 0 ? high : low) =
        cell.Weight > 0 ? std::min(high, toHighest) : std::max(low, toHighest);
  }
  return {static_cast<int>(std::min(0.0, std::ceil(low))),
          static_cast<int>(std::max(0.0, std::floor(high)))};
}

void VaryCell(Spreading& spreading, int row, int column) {
  if (!BuildExchange(spreading, row, column)) return;
  const FactorRange range = ExchangeRange(spreading);
  const double eighth = (range.High - range.Low) / 8.0;
  const int low = static_cast<int>(std::ceil(range.Low + eighth));
  const int high = static_cast<int>(std::floor(range.High - eighth));
  spreading.ApplyPattern(low < high ? spreading.Dice().Between(low, high) : 0);
}

void OddSizePass(Spreading& spreading, ListBoy& order) {
  const int n = spreading.BoardValues.Order();
  const int middle = (n + 1) / 2;
  ShuffleLines(spreading, order, n);
  for (int place = 0; place < n; ++place) {
    const int line = LineAt(order, place);
    VaryCell(spreading, middle, line);
    VaryCell(spreading, line, middle);
  }
}

void ThirdCornerPass(Spreading& spreading, ListBoy& order) {
  const int n = spreading.BoardValues.Order();
  ShuffleLines(spreading, order, n);
  for (int place = 0; place < n; ++place) {
    const int row = LineAt(order, place);
    for (int column = 1; column <= n; ++column) {
      if (row != 1 || column != 1) VaryCell(spreading, row, column);
    }
  }
}

void SeedCorner(Spreading& spreading, double base, double corner) {
  constexpr int kAttempts = 20;  // one in thousands fails at order 5, where cells are few
  constexpr double kTooLowToSpread = 3;
  TurningSquare& square = spreading.BoardValues;
  const int n = square.Order();
  const double low = std::min(base, kTooLowToSpread);
  bool seeded = false;
  for (int attempt = 0; !seeded && attempt < kAttempts; ++attempt) {
    square.Fill(base);
    MoveCell(spreading, 1, 1, corner);
    if (corner > kTooLowToSpread) MoveCell(spreading, n, n, low);
    MoveCell(spreading, 1, n, low);
    seeded = square(1, 1) == corner && std::min(corner, square(n, n)) <= kTooLowToSpread &&
             square(1, n) == low;
  }
  const int turnsToCome = n / 2 - 1;
  for (int turn = 0; (turn + turnsToCome) % 4 != 0; ++turn)
    square.RotateBoard90();
}

}  // namespace numorra
