#include "app/play/walk.h"

#include <utility>

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "app/play/board_state.h"

namespace numorra {
namespace {

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
  const double target = static_cast<double>(NormalTotal(n));
  const auto show = [&](Place total, auto textAt) {
    double sum = 0;
    bool full = true;
    for (int i = 1; i <= n && full; ++i) {
      const std::string& text = textAt(i);
      full = !text.empty() && text[0] >= '0' && text[0] <= '9';
      sum += full ? Val(text) : 0;
    }
    grid_.SetText(total.Row, total.Column, full ? Decimal(sum) : "");
    grid_.Judge(total.Row, total.Column,
                full && sum == target ? Verdict::Right : Verdict::Unjudged);
  };
  const auto text = [&](int row, int column) -> const std::string& {
    return grid_.Text(row, column);
  };
  for (int line = 1; line <= n; ++line) {
    show({line, 0}, [&](int i) -> const std::string& { return text(line, i); });
    show({0, line}, [&](int i) -> const std::string& { return text(i, line); });
  }
  show({0, 0}, [&](int i) -> const std::string& { return text(i, i); });
  for (const Place total : {Place{0, n + 1}, Place{n + 1, 0}})
    show(total, [&](int i) -> const std::string& { return text(i, n + 1 - i); });
}

std::string StateOf(const Walk& walk) {
  return StateHead(walk.Order(), static_cast<double>(NormalTotal(walk.Order()))) + "step " +
         std::to_string(walk.At()) + " of " + std::to_string(walk.Steps());
}

}  // namespace numorra
