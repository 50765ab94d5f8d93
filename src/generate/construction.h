#pragma once

#include <array>
#include <vector>

#include "app/board/cell_table.h"
#include "generate/construction_steps.h"
#include "generate/placed_numbers.h"

namespace numorra {

/// What a build asks its caller for, and tells of its progress. On its own, it takes the first of
/// everything and tells no one.
class BuildChoices {
 public:
  virtual ~BuildChoices() = default;

  /// Which of `kept` > 0 squares to build, from 0.
  virtual int PickOf(int /*kept*/) { return 0; }

  /// How far to turn the square, 0 to 3 quarter turns clockwise.
  virtual int QuarterTurns() { return 0; }

  /// A count of steps begins: from 0, or where the last one stood.
  virtual void StartCount() {}
  virtual void ResumeCount() {}

  virtual void Count(int /*steps*/) {}
};

/// A way to make normal magic squares: how it builds them, and how it explains those it can build.
/// Each stands in a file of its own.
struct Construction {
  const char* Name;

  bool (*Makes)(int order);

  /// A square of an order that it makes, in the value block.
  CellTable (*Build)(int order, BuildChoices& choices);

  /// The steps that lead to a normal square of such an order; empty where this construction does
  /// not make it.
  std::vector<WalkStep> (*StepsOf)(const PlacedNumbers& square);
};

extern const Construction kSteppingConstruction;  ///< odd orders
extern const Construction kLuxConstruction;       ///< orders 4k + 2
extern const Construction kDiagonalConstruction;  ///< orders 4m

/// All of them. Where several make an order, the first is the one that is built.
inline constexpr std::array kConstructions = {&kSteppingConstruction, &kLuxConstruction,
                                              &kDiagonalConstruction};

/// The construction that builds the order. Throws InvalidPropertyValue for orders below 1.
const Construction& ConstructionFor(int order);

}  // namespace numorra
