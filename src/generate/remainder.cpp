#include "generate/remainder.h"

#include <array>
#include <cstdlib>
#include <numeric>
#include <span>

namespace numorra {
namespace {

/// Adds d along the unit pattern; false as soon as a changed cell is below 1.
bool AddUnit(TurningSquare& square, int d) {
  const int n = square.Order();
  const auto add = [&](int row, int column, int amount) {
    return (square(row, column) += amount) >= 1;
  };
  bool fine = add(1, 1, d) && add(1, n - 1, d) && add(1, n, -d) && add(2, n - 1, d) &&
              add(n - 1, n - 1, -d) && add(n - 1, n, d) && add(n, n, d);
  for (int a = 3; fine && a < n; ++a)
    fine = add(a, a - 1, d);
  return fine;
}

/// Whether the cells (i, column[i]) meet the falling and the rising diagonal exactly once each.
bool MeetsDiagonalsOnce(std::span<const int> column) {
  const int n = static_cast<int>(column.size());
  int falling = 0;
  int rising = 0;
  for (int i = 0; i < n; ++i) {
    if (column[static_cast<std::size_t>(i)] == i) ++falling;
    if (column[static_cast<std::size_t>(i)] == n - 1 - i) ++rising;
  }
  return falling == 1 && rising == 1;
}

}  // namespace

bool SpreadRemainderEven(TurningSquare& square, int remainder) {
  const int d = remainder < 0 ? -1 : 1;
  TurningSquare boardBackup = square;
  for (int attempt = 0; attempt < 4; ++attempt) {
    if (attempt > 0) boardBackup.RotateBoard90();
    square = boardBackup;
    bool fine = true;
    for (int unit = 0; fine && unit < std::abs(remainder); ++unit)
      fine = AddUnit(square, d);
    if (fine) return true;
  }
  square = boardBackup;
  return false;
}

bool SpreadRemainderOdd(TurningSquare& square, int remainder, Random& random) {
  constexpr int kMaxShuffles = 10000;  // about one permutation in seven is suitable
  std::array<int, CellTable::kSide> columns{};
  const std::span<int> column(columns.data(), static_cast<std::size_t>(square.Order()));
  std::iota(column.begin(), column.end(), 0);
  for (int unit = 0; unit < remainder; ++unit) {
    bool found = false;
    for (int shuffle = 0; !found && shuffle < kMaxShuffles; ++shuffle) {
      Shuffle(column, random);
      found = MeetsDiagonalsOnce(column);
    }
    if (!found) return false;
    for (int row = 1; row <= square.Order(); ++row) {
      square(row, 1 + column[static_cast<std::size_t>(row - 1)]) += 1;
    }
  }
  return true;
}

}  // namespace numorra
