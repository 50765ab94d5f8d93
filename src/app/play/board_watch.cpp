#include "app/play/board_watch.h"

#include <utility>

namespace numorra {

void BoardWatch::End(const std::string& name) {
  const CommandResult result{name, std::move(before_), PositionOf(board_)};
  for (const Listener& listener : listeners_)
    listener(result);
}

}  // namespace numorra
