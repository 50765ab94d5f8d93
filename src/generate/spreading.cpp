#include "generate/spreading.h"

#include <algorithm>
#include <functional>

namespace numorra {
namespace {

/// A ring, by the lines of its corners.
struct Ring {
  int Top, Left, Bottom, Right;
};

/// The index of the best of the cells cellAt(first) to cellAt(last), the first among equals;
/// `found` is unchanged if none is better than `best`.
template <class Better, class CellAt>
void FindBest(int& found, double best, Better better, int first, int last, CellAt cellAt) {
  for (int place = first; place <= last; ++place) {
    const double value = cellAt(place);
    if (better(value, best)) {
      best = value;
      found = place;
    }
  }
}

/// Raises (sign 1) or lowers (sign -1) the ring's top edge at `column` and right edge at `row`.
/// False if nothing can be applied: a place is missing or a cell would fall below 1.
bool ApplyRingPattern(PatternedSquare& square, const Ring& ring, int row, int column, int sign) {
  if (row == 0 || column == 0) return false;
  Pattern pattern;
  pattern.Add(ring.Top, ring.Left, -sign);
  pattern.Add(ring.Top, ring.Right, -2 * sign);
  pattern.Add(ring.Top, column, 3 * sign);
  pattern.Add(ring.Bottom, column, -3 * sign);
  pattern.Add(row, ring.Left, -sign);
  pattern.Add(row, ring.Right, sign);
  pattern.Add(ring.Bottom, ring.Left, 2 * sign);
  pattern.Add(ring.Bottom, ring.Right, sign);
  const bool tooLow = std::any_of(pattern.begin(), pattern.end(), [&](const FlaggedCell& cell) {
    return square(cell.Row, cell.Column) + cell.Weight < 1;
  });
  if (tooLow) return false;
  square.Apply(pattern, 1);
  return true;
}

void SpreadRing(PatternedSquare& square, const Ring& ring) {
  constexpr int kMaxRounds = 100;
  constexpr double kNoMinimum = 9999;
  constexpr double kNoMaximum = -1;
  const int n = square.Order();
  int smallestColumn = 0, smallestRow = 0, largestColumn = 0, largestRow = 0;  // 0 = none yet
  const auto inRow = [&](int row) { return [&square, row](int c) { return square(row, c); }; };
  const auto inColumn = [&](int column) {
    return [&square, column](int r) { return square(r, column); };
  };
  for (int round = 0; round < kMaxRounds; ++round) {
    FindBest(smallestColumn, kNoMinimum, std::less<>(), ring.Left + 1, ring.Right - 1,
             inRow(ring.Top));
    FindBest(smallestRow, kNoMinimum, std::less<>(), ring.Top + 1, ring.Bottom - 1,
             inColumn(ring.Right));
    if (!ApplyRingPattern(square, ring, smallestRow, smallestColumn, 1)) return;
    FindBest(largestColumn, kNoMaximum, std::greater<>(), ring.Left + 1, ring.Right - 1, inRow(1));
    FindBest(largestRow, kNoMaximum, std::greater<>(), ring.Top + 1, ring.Bottom - 1, inColumn(n));
    if (!ApplyRingPattern(square, ring, largestRow, largestColumn, -1)) return;
    square.Square().RotateBoard90();
  }
}

}  // namespace

void SpreadCornerDiagonals(PatternedSquare& square) {
  const int n = square.Order();
  for (int k = 2; k < n + 1 - k; ++k) {
    const int mirror = n + 1 - k;
    Pattern pattern;
    pattern.Add(1, 1, -1);
    pattern.Add(1, n, 1);
    pattern.Add(n, 1, 1);
    pattern.Add(n, n, -1);
    pattern.Add(k, k, 2);
    pattern.Add(k, mirror, -2);
    pattern.Add(n, k, -2);
    pattern.Add(n, mirror, 2);
    square.ApplyBothSigns(pattern);
    square.Square().RotateBoard90();
  }
}

void SpreadCornerEdges(PatternedSquare& square) {
  const int n = square.Order();
  for (int column = n - 1; column > 1; --column) {
    Pattern pattern;
    pattern.Add(1, 1, 1);
    pattern.Add(1, n, 1);
    pattern.Add(n, 1, -1);
    pattern.Add(n, n, -1);
    pattern.Add(1, column, -2);
    pattern.Add(n, column, 2);
    square.ApplyBothSigns(pattern);
    square.Square().RotateBoard90();
  }
}

void SpreadRings(PatternedSquare& square) {
  const int n = square.Order();
  for (int k = 1; k <= (n + 1) / 2 - 1; ++k)
    SpreadRing(square, {k, k, n + 1 - k, n + 1 - k});
}

}  // namespace numorra
