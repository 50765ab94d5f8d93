#include "generate/spreading.h"

#include <algorithm>
#include <limits>

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "app/board/runtime_error.h"

namespace numorra {
namespace {

constexpr double kNoMinimum = 9999;
constexpr double kNoMaximum = -1;
constexpr int kMaxRounds = 100;
constexpr double kHighestLimited = 9;

}  // namespace

void Spreading::ApplyPattern(int factor) {
  if (PassCount == std::numeric_limits<std::int32_t>::max()) throw RuntimeError(Fault::Overflow);
  ++PassCount;
  const bool forbidden =
      LimitToNine && std::any_of(CellFlags.begin(), CellFlags.end(), [&](const FlaggedCell& cell) {
        return BoardValues(cell.Row, cell.Column) + factor * cell.Weight > kHighestLimited;
      });
  if (!forbidden) {
    for (const FlaggedCell& cell : CellFlags) {
      BoardValues(cell.Row, cell.Column) += factor * cell.Weight;
    }
  }
  stage_.ShowCount(PassCount);
  stage_.Yield();
}

int Spreading::PatternFactor() {
  double smallest = kNoMinimum;
  for (const FlaggedCell& cell : CellFlags) {
    if (cell.Weight < 0) smallest = std::min(smallest, BoardValues(cell.Row, cell.Column));
  }
  if (smallest == 1) return 0;
  constexpr double kDepth = 2;  // the most that one application lowers a cell by
  const double highest = smallest / kDepth - 1;
  const int factor = ToInt16(std::min(1 + random_.Next() * highest, highest));
  return LimitToNine && ExceedsNine(factor) ? 0 : factor;
}

/// Whether any cell of the board, in the pattern or not, would be above 9.
bool Spreading::ExceedsNine(int factor) const {
  TurningSquare after = BoardValues;
  for (const FlaggedCell& cell : CellFlags)
    after(cell.Row, cell.Column) += factor * cell.Weight;
  bool exceeds = false;
  ForEachCell(after.Order(), [&](int r, int c) { exceeds |= after(r, c) > kHighestLimited; });
  return exceeds;
}

void Spreading::ApplyBothSigns() {
  ApplyPattern(PatternFactor());
  CellFlags.Negate();
  ApplyPattern(PatternFactor());
}

void Spreading::SpreadCornerDiagonals() {
  const int n = BoardValues.Order();
  for (int k = 2; k < n + 1 - k; ++k) {
    const int mirror = n + 1 - k;
    ClearCellFlags();
    CellFlags.Add(1, 1, -1);
    CellFlags.Add(1, n, 1);
    CellFlags.Add(n, 1, 1);
    CellFlags.Add(n, n, -1);
    CellFlags.Add(k, k, 2);
    CellFlags.Add(k, mirror, -2);
    CellFlags.Add(n, k, -2);
    CellFlags.Add(n, mirror, 2);
    ApplyBothSigns();
    BoardValues.RotateBoard90();
  }
}

void Spreading::SpreadCornerEdges() {
  const int n = BoardValues.Order();
  for (int column = n - 1; column > 1; --column) {
    ClearCellFlags();
    CellFlags.Add(1, 1, 1);
    CellFlags.Add(1, n, 1);
    CellFlags.Add(n, 1, -1);
    CellFlags.Add(n, n, -1);
    CellFlags.Add(1, column, -2);
    CellFlags.Add(n, column, 2);
    ApplyBothSigns();
    BoardValues.RotateBoard90();
  }
}

void Spreading::SpreadRings() {
  const int n = BoardValues.Order();
  for (int k = 1; k <= (n + 1) / 2 - 1; ++k)
    SpreadRing(k, k, n + 1 - k, n + 1 - k);
}

struct Spreading::Ring {
  int Top, Left, Bottom, Right;
};

void Spreading::SpreadRing(int top, int left, int bottom, int right) {
  const Ring ring{top, left, bottom, right};
  const int n = BoardValues.Order();
  int smallestColumn = 0, smallestRow = 0, largestColumn = 0, largestRow = 0;  // 0 = none yet
  const auto scan = [this](int& found, double best, auto better, int first, int last, auto cellAt) {
    for (int i = first; i <= last; ++i) {
      const double value = cellAt(BoardValues, i);
      if (better(value, best)) {
        best = value;
        found = i;
      }
    }
  };
  const auto inRow = [](int row) {
    return [row](const TurningSquare& square, int column) { return square(row, column); };
  };
  const auto inColumn = [](int column) {
    return [column](const TurningSquare& square, int row) { return square(row, column); };
  };
  for (int round = 0; round < kMaxRounds; ++round) {
    scan(smallestColumn, kNoMinimum, std::less<>(), left + 1, right - 1, inRow(top));
    scan(smallestRow, kNoMinimum, std::less<>(), top + 1, bottom - 1, inColumn(right));
    if (!ApplyRingPattern(ring, smallestRow, smallestColumn, 1)) return;
    scan(largestColumn, kNoMaximum, std::greater<>(), left + 1, right - 1, inRow(1));
    scan(largestRow, kNoMaximum, std::greater<>(), top + 1, bottom - 1, inColumn(n));
    if (!ApplyRingPattern(ring, largestRow, largestColumn, -1)) return;
    BoardValues.RotateBoard90();
  }
}

/// Raises (sign 1) or lowers (sign -1) the ring's top edge at `column` and right edge at `row`.
/// False when nothing could be applied: a place is missing or a cell would fall below 1.
bool Spreading::ApplyRingPattern(const Ring& ring, int row, int column, int sign) {
  if (row == 0 || column == 0) return false;
  ClearCellFlags();
  CellFlags.Add(ring.Top, ring.Left, -sign);
  CellFlags.Add(ring.Top, ring.Right, -2 * sign);
  CellFlags.Add(ring.Top, column, 3 * sign);
  CellFlags.Add(ring.Bottom, column, -3 * sign);
  CellFlags.Add(row, ring.Left, -sign);
  CellFlags.Add(row, ring.Right, sign);
  CellFlags.Add(ring.Bottom, ring.Left, 2 * sign);
  CellFlags.Add(ring.Bottom, ring.Right, sign);
  const int factor = RingFactor();
  if (factor == 0) return false;
  ApplyPattern(factor);
  return true;
}

int Spreading::RingFactor() const {
  const bool tooLow =
      std::any_of(CellFlags.begin(), CellFlags.end(), [this](const FlaggedCell& cell) {
        return BoardValues(cell.Row, cell.Column) + cell.Weight < 1;
      });
  return tooLow ? 0 : 1;
}

}  // namespace numorra
