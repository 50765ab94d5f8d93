#pragma once

#include <optional>

#include "app/board/line.h"
#include "app/board/square.h"

namespace numorra {

/// Two cells, by index, of one row or column that hold the same symbol.
struct Repetition {
  Line In;
  int First;
  int Second;
};

/// The first repetition in a square of the symbols 0 to n - 1; nothing if it is latin.
std::optional<Repetition> FirstRepetition(const Square<int>& symbols);

}  // namespace numorra
