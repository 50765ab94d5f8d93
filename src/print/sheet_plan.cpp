#include "print/sheet_plan.h"

#include <algorithm>

namespace numorra {
namespace {

constexpr double kBetween = 6;  // millimetres between puzzles

}  // namespace

QRectF SheetPlan::Area(int page) const {
  QRectF area(QPointF(), Paper);
  area.adjust(kMargin, kMargin, -kMargin, -kMargin);
  if (!Options.Booklet) return area;
  const bool right = page % 2 == 0;  // a right page is bound at its left side
  return area.adjusted(right ? kBinding : 0, 0, right ? 0 : -kBinding, 0);
}

/// The number of puzzles side by side and one below another.
QSize SheetPlan::Slots() const {
  constexpr int kSix = 6;
  const QSize tall = PerPage == 1      ? QSize(1, 1)
                     : PerPage == 2    ? QSize(1, 2)
                     : PerPage == kSix ? QSize(2, 3)
                                       : QSize(2, 2);
  return Paper.width() > Paper.height() ? tall.transposed() : tall;
}

QRectF SheetPlan::SlotArea(int page, int place) const {
  const QSize grid = Slots();
  const QRectF area = Area(page).adjusted(0, Header, 0, -Footer);
  const double width = (area.width() - (grid.width() - 1) * kBetween) / grid.width();
  const double height = (area.height() - (grid.height() - 1) * kBetween) / grid.height();
  const int row = place / grid.width();
  const int column = place % grid.width();
  return {area.left() + column * (width + kBetween), area.top() + row * (height + kBetween), width,
          height};
}

QRectF SheetPlan::BoardIn(const QRectF& slot, double side) const {
  QRectF board(0, 0, side, side);
  board.moveCenter(slot.adjusted(0, Name + Caption, 0, -Below).center());
  return board;
}

double SheetPlan::CellSide(int order, double largest) const {
  const QRectF slot = SlotArea(0, 0);
  return std::min(
      {largest, slot.width() / order, (slot.height() - Name - Caption - Below) / order});
}

}  // namespace numorra
