#include "transform/turning_square.h"

#include <utility>

#include "app/board/board.h"

namespace numorra {

TurningSquare::TurningSquare(int order) : order_(order) {
  if (order < 1 || order > kSide - 2) throw RuntimeError(Fault::SubscriptOutOfRange);
}

TurningSquare::TurningSquare(const CellTable& cells, int order) : TurningSquare(order) {
  ForEachCell(order, [&](int r, int c) { (*this)(r, c) = cells(r, c); });
}

void TurningSquare::RotateBoard90() {
  // The cell now at (r, c) was at (n + 1 - c, r).
  origin_ += (order_ + 1) * rowStep_;
  rowStep_ = std::exchange(columnStep_, -rowStep_);
}

CellTable TurningSquare::Settled() const {
  CellTable cells;
  ForEachCell(order_, [&](int r, int c) { cells(r, c) = (*this)(r, c); });
  return cells;
}

}  // namespace numorra
