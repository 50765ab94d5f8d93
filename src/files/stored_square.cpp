#include "files/stored_square.h"

#include <algorithm>

namespace numorra {

bool StoredSquare::HasGaps() const {
  return std::find(Cells.begin(), Cells.end(), std::nullopt) != Cells.end();
}

const char* NameOf(Rules rules) {
  return rules == Rules::Normal ? "normal" : "positive";
}

}  // namespace numorra
