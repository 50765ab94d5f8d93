#include "puzzle/line_map.h"

#include <map>
#include <memory>
#include <mutex>

namespace numorra {

LineMap::LineMap(int order, LineKind kind)
    : order_(order),
      lines_(numorra::LinesOf(kind, order)),
      linesOf_(static_cast<std::size_t>(order) * static_cast<std::size_t>(order)) {
  for (int line = 0; line < Lines(); ++line) {
    for (const int cell : CellsOf(line))
      linesOf_[static_cast<std::size_t>(cell)].push_back(line);
  }
}

const LineMap& LineMap::Of(int order, LineKind kind) {
  static std::mutex oneAtATime;
  static std::map<std::pair<int, LineKind>, std::unique_ptr<LineMap>> maps;
  const std::lock_guard lock(oneAtATime);
  auto& map = maps[{order, kind}];
  if (!map) map.reset(new LineMap(order, kind));
  return *map;
}

}  // namespace numorra
