#pragma once

#include <vector>

#include "app/board/square.h"

namespace numorra {

/// A square known from history.
struct FamousSquare {
  const char* Name;     ///< of its menu item
  const char* Caption;  ///< what the item says, a phrase
  const char* Story;    ///< a phrase of one line: where, when, and what is special about it
  double Total;
  Square<double> Numbers;
};

/// In order of age, the oldest first.
const std::vector<FamousSquare>& FamousSquares();

/// The famous square with this standard form; null if there is none.
const FamousSquare* FamousWithForm(const Square<double>& standardForm);

}  // namespace numorra
