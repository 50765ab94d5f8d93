#pragma once

#include <array>
#include <vector>

#include "app/board/cell_table.h"
#include "generate/construction_steps.h"
#include "generate/placed_numbers.h"

namespace numorra {

/// The choices that a build leaves to its caller, and its reports of progress. By default, every
/// choice is the first one and nothing is reported.
class BuildChoices {
 public:
  virtual ~BuildChoices() = default;

  /// Which of `kept` > 0 squares to build, from 0.
  virtual int PickOf(int /*kept*/) { return 0; }

  /// Quarter turns clockwise for the square, 0 to 3.
  virtual int QuarterTurns() { return 0; }

  /// Starts counting steps, from 0 or from the last count.
  virtual void StartCount() {}
  virtual void ResumeCount() {}

  virtual void Count(int /*steps*/) {}
};

/// A way to make normal magic squares: how it builds them, and how it explains those that it can
/// build. Each has a file of its own.
struct Construction {
  const char* Name;

  bool (*Makes)(int order);

  /// Builds a square of an order that it makes, in the value block.
  CellTable (*Build)(int order, BuildChoices& choices);

  /// The steps that lead to a normal square of such an order; empty if this construction cannot
  /// make it.
  std::vector<WalkStep> (*StepsOf)(const PlacedNumbers& square);
};

extern const Construction kSteppingConstruction;  ///< odd orders
extern const Construction kLuxConstruction;       ///< orders 4k + 2
extern const Construction kDiagonalConstruction;  ///< orders 4m

/// All constructions. If several make an order, the first one builds it.
inline constexpr std::array kConstructions = {&kSteppingConstruction, &kLuxConstruction,
                                              &kDiagonalConstruction};

/// The construction that builds the order. Throws InvalidPropertyValue for orders below 1.
const Construction& ConstructionFor(int order);

}  // namespace numorra
