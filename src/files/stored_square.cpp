#include "files/stored_square.h"

#include <algorithm>

#include "app/board/numbers.h"

namespace numorra {

bool StoredSquare::HasGaps() const {
  return std::find(Cells.begin(), Cells.end(), std::nullopt) != Cells.end();
}

std::string TotalAnd(const std::string& caption, const StoredSquare& square) {
  if (!square.Total) return caption;
  return "total " + Decimal(*square.Total) + (caption.empty() ? "" : ", ") + caption;
}

const char* NameOf(Rules rules) {
  return rules == Rules::Normal ? "normal" : "positive";
}

}  // namespace numorra
