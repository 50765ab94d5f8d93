#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "app/board/random.h"
#include "app/board/square.h"

namespace numorra {

/// A way to make another square of the same kind from a square: its relative.
struct Relative {
  const char* Name;     ///< of its menu item
  const char* Caption;  ///< what the item says
  const char* Keeps;    ///< one sentence: what is done, and what stays
  const char* Term;     ///< what a square must be for it
  bool SameNumbers;     ///< moves the numbers and leaves them as they are

  /// A relative at random; nothing where there is none for the order or the numbers.
  std::optional<Square<double>> (*Draw)(const Square<double>& square, Random& random);
};

/// In the order of the menu.
extern const std::array<Relative, 8> kRelatives;

/// Another square, no image of the given one, of which every term about lines, diagonals, pairs,
/// blocks, powers and rings holds that holds of it: the first that judges find so among some
/// relatives at random. Nothing where none is found.
std::optional<Square<double>> DrawRelative(const Relative& relative, const Square<double>& square,
                                           Random& random);

/// Those that make such squares of this one, to be offered; the same at every call.
std::vector<const Relative*> RelativesOf(const Square<double>& square);

/// The same by any of those that leave the numbers as they are.
std::optional<Square<double>> VariedWithinKind(const Square<double>& square, Random& random);

}  // namespace numorra
