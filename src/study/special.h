#pragma once

#include <array>
#include <string>

#include "app/board/random.h"
#include "app/board/square.h"

namespace numorra {

/// A kind of normal magic square that can be built at every order at which there is one.
struct SpecialKind {
  const char* Term;
  const char* Name;     ///< of its menu item
  const char* Caption;  ///< what the item says

  /// Why no normal square of this kind has the order, one of 3..50; empty where one has.
  std::string (*WhyNone)(int order);

  /// Such a square at random.
  Square<double> (*Build)(int order, Random& random);
};

/// In the order of the menu.
extern const std::array<SpecialKind, 5> kSpecialKinds;

/// The kind that has this term; null where none has.
const SpecialKind* FindSpecialKind(const std::string& term);

// Each for the orders at which WhyNone says nothing.
Square<double> AssociativeSquare(int order, Random& random);
Square<double> PandiagonalSquare(int order, Random& random);
Square<double> MostPerfectSquare(int order, Random& random);
Square<double> UltramagicSquare(int order, Random& random);
Square<double> BorderedSquare(int order, Random& random);

}  // namespace numorra
