#pragma once

#include <array>
#include <string>
#include <vector>

#include "app/board/cell_table.h"
#include "app/board/random.h"
#include "app/board/square.h"
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
  const char* Term;     ///< its word on the command line
  const char* Name;     ///< of its menu item
  const char* Caption;  ///< what the item says, a phrase
  const char* Source;   ///< a phrase: who described it, and when, if that is known

  /// Why it makes no square of an order; empty if it makes one. Boards have the orders 3 to 50.
  std::string (*WhyNone)(int order);

  /// Builds a square of an order that it makes, in the value block.
  CellTable (*Build)(int order, BuildChoices& choices);

  /// The steps that lead to a normal square of such an order; empty if this construction cannot
  /// make it.
  std::vector<WalkStep> (*StepsOf)(const PlacedNumbers& square);
};

extern const Construction kSteppingConstruction;   ///< odd orders
extern const Construction kLuxConstruction;        ///< orders 4k + 2
extern const Construction kDiagonalConstruction;   ///< orders 4m
extern const Construction kLozengeConstruction;    ///< odd orders
extern const Construction kKnightConstruction;     ///< odd orders from 5
extern const Construction kQuadrantConstruction;   ///< orders 4k + 2 from 6
extern const Construction kBorderConstruction;     ///< orders from 5
extern const Construction kLatinConstruction;      ///< odd orders and orders 4m
extern const Construction kCompositeConstruction;  ///< orders m k with m and k from 3

/// All constructions. If several make an order, NormalSquare uses the first one.
inline constexpr std::array kConstructions = {
    &kSteppingConstruction, &kLuxConstruction,    &kDiagonalConstruction,
    &kLozengeConstruction,  &kKnightConstruction, &kLatinConstruction,
    &kQuadrantConstruction, &kBorderConstruction, &kCompositeConstruction};

/// The first construction that makes the order. Throws InvalidPropertyValue for orders below 1.
const Construction& ConstructionFor(int order);

/// The construction with this term; null if there is none.
const Construction* FindConstruction(const std::string& term);

/// A square by the construction, of an order that it makes, with its choices taken at random.
Square<double> SquareBy(const Construction& construction, int order, Random& random);

/// The same with the first choice each time: a good first example to walk through.
Square<double> ExampleOf(const Construction& construction, int order);

/// The square as a value block.
CellTable TableOf(const Square<double>& square);

}  // namespace numorra
