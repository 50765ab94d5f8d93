#include "puzzle/line_map.h"

#include <array>
#include <memory>
#include <mutex>

#include "app/board/line.h"
#include "app/board/orders.h"

namespace numorra {

LineMap::LineMap(int order) : lines_(static_cast<std::size_t>(order * order)) {
  for (const Line line : MagicLines(order)) {
    std::vector<int> cells;
    for (int i = 0; i < order; ++i) {
      cells.push_back(line.Cell(i, order));
      lines_[static_cast<std::size_t>(cells.back())].push_back(static_cast<int>(cells_.size()));
    }
    cells_.push_back(std::move(cells));
  }
}

const LineMap& LineMap::Of(int order) {
  static std::mutex oneAtATime;
  static std::array<std::unique_ptr<LineMap>, kMaxOrder + 1> maps;
  const std::lock_guard lock(oneAtATime);
  auto& map = maps[static_cast<std::size_t>(order)];
  if (!map) map.reset(new LineMap(order));
  return *map;
}

}  // namespace numorra
