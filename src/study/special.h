#pragma once

#include <array>
#include <string>

#include "app/board/random.h"
#include "app/board/square.h"

namespace numorra {

/// A kind of normal magic square that can be built for every order that has one.
struct SpecialKind {
  const char* Term;
  const char* Name;     ///< of its menu item
  const char* Caption;  ///< what the item says, a phrase

  /// Why no normal square of this kind has the order, one of 3..50; empty if one has.
  std::string (*WhyNone)(int order);

  /// Such a square at random.
  Square<double> (*Build)(int order, Random& random);
};

/// In the order of the menu.
extern const std::array<SpecialKind, 5> kSpecialKinds;

/// The kind with this term; null if there is none.
const SpecialKind* FindSpecialKind(const std::string& term);

// For the orders for which WhyNone gives no reason.
Square<double> AssociativeSquare(int order, Random& random);
Square<double> PandiagonalSquare(int order, Random& random);
Square<double> MostPerfectSquare(int order, Random& random);
Square<double> UltramagicSquare(int order, Random& random);
Square<double> BorderedSquare(int order, Random& random);

}  // namespace numorra
