#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/board/square.h"

namespace numorra {

/// One step of a construction: what is written where, the cells and the arrow to show, and one
/// sentence about it.
struct WalkStep {
  std::vector<std::pair<Place, std::string>> Written;
  std::vector<Place> Marked;  ///< the cells that the step is about
  std::optional<std::pair<Place, Place>> Arrow = {};
  std::string Sentence;
  int Number = 0;  ///< the number that the player can be asked to place; 0 for none
};

/// The steps by which a construction makes a normal square; the last one leaves the square itself.
/// Empty if no construction makes it.
std::vector<WalkStep> WalkOf(const Square<double>& square);

/// A square to walk through, and how a list of choices names it.
struct WalkExample {
  std::string Caption;
  Square<double> Numbers;
};

/// One for each construction: those of Auto first, then the others in the order of the menu.
std::vector<WalkExample> WalkExamples();

/// A square of the order, 3 to 50, that is a good first example to walk through, in reading order.
Square<double> ExampleToWalk(int order);

}  // namespace numorra
