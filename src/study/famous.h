#pragma once

#include <vector>

#include "app/board/square.h"

namespace numorra {

/// A square that history remembers.
struct FamousSquare {
  const char* Name;  ///< of its menu item
  const char* Caption;
  const char* Story;  ///< one line: where, when, and what is special about it
  double Total;
  Square<double> Numbers;
};

/// The oldest first.
const std::vector<FamousSquare>& FamousSquares();

/// The famous square that has this standard form; null where none has.
const FamousSquare* FamousWithForm(const Square<double>& standardForm);

}  // namespace numorra
