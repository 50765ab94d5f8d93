#include "app/play/walk.h"

#include <utility>

#include "app/board/board.h"
#include "app/board/line.h"
#include "app/board/numbers.h"
#include "app/play/board_state.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Where the frame shows a line's total.
std::vector<Place> TotalsOf(Line line, int order) {
  switch (line.Way) {
    case Line::Row:
      return {{line.K + 1, 0}};
    case Line::Column:
      return {{0, line.K + 1}};
    case Line::Falling:
      return {{0, 0}};
    case Line::Rising:
      break;
  }
  return {{0, order + 1}, {order + 1, 0}};
}

/// An empty board of the order.
void Empty(Grid& grid, int order) {
  grid.Reshape(order + 2, order + 2);
  ForEachCell(order, [&](int row, int column) {
    grid.SetColours(row, column, ColorTable[kCellBackground], ColorTable[kCellText]);
  });
  grid.SetVisible(true);
}

}  // namespace

void Walk::Begin(int order, std::vector<WalkStep> steps) {
  order_ = order;
  steps_ = std::move(steps);
  at_ = 0;
  const RedrawLock lock(grid_);
  Empty(grid_, order_);
}

const WalkStep* Walk::Find(int step) const {
  return step >= 0 && step < Steps() ? &steps_[static_cast<std::size_t>(step)] : nullptr;
}

void Walk::GoTo(int step) {
  if (order_ == 0) return;
  const RedrawLock lock(grid_);
  if (step < at_) {
    const int row = grid_.CurrentRow();
    const int column = grid_.CurrentColumn();
    Empty(grid_, order_);
    grid_.SetCurrent(row, column);
    at_ = 0;
  }
  for (; at_ < step && at_ < Steps(); ++at_) {
    for (const auto& [place, text] : steps_[static_cast<std::size_t>(at_)].Written)
      grid_.SetText(place.Row, place.Column, text);
  }
  grid_.SetOutlined(Done() ? Done()->Marked : std::vector<Place>());
  ShowTotals();
}

/// Shows the totals of full lines, the right ones in their colour.
void Walk::ShowTotals() {
  const int n = order_;
  const auto target = static_cast<double>(NormalTotal(n));
  for (const Line line : MagicLines(n)) {
    double sum = 0;
    bool full = true;
    for (const Place place : PlacesOf(line, n)) {
      const std::string& text = grid_.Text(place.Row, place.Column);
      full = full && !text.empty() && text[0] >= '0' && text[0] <= '9';
      sum += full ? Val(text) : 0;
    }
    for (const Place total : TotalsOf(line, n)) {
      grid_.SetText(total.Row, total.Column, full ? Decimal(sum) : "");
      grid_.Judge(total.Row, total.Column,
                  full && sum == target ? Verdict::Right : Verdict::Unjudged);
    }
  }
}

std::string StateOf(const Walk& walk) {
  return StateText(walk.Order(), static_cast<double>(NormalTotal(walk.Order())),
                   Say("step %1 of %2", walk.At(), walk.Steps()));
}

}  // namespace numorra
