#pragma once

#include <vector>

namespace numorra {

/// A square that history remembers.
struct FamousSquare {
  const char* Name;  ///< of its menu item
  const char* Caption;
  const char* Story;  ///< one line: where, when, and what is special about it
  int Order;
  double Total;
  std::vector<double> Numbers;  ///< in reading order
};

/// The oldest first.
const std::vector<FamousSquare>& FamousSquares();

/// The famous square that has this standard form; null where none has.
const FamousSquare* FamousWithForm(int order, const std::vector<double>& standardForm);

}  // namespace numorra
