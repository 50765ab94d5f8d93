#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "app/board/random.h"
#include "app/board/square.h"

namespace numorra {

/// A way to make a relative of a square: another square of the same kind.
struct Relative {
  const char* Name;     ///< of its menu item
  const char* Caption;  ///< what the item says, a phrase
  const char* Keeps;    ///< a phrase of one sentence: what changes and what stays
  const char* Term;     ///< what a square must be
  bool SameNumbers;     ///< only moves the numbers

  /// A relative at random; nothing if the order or the numbers allow none.
  std::optional<Square<double>> (*Draw)(const Square<double>& square, Random& random);
};

/// In the order of the menu.
extern const std::array<Relative, 8> kRelatives;

/// Another square, not an image of the given one, that keeps every term about lines, diagonals,
/// pairs, blocks, powers and rings that holds for it. Draws relatives at random and returns the
/// first that the judges confirm; nothing if none is found.
std::optional<Square<double>> DrawRelative(const Relative& relative, const Square<double>& square,
                                           Random& random);

/// The relatives that can be drawn for this square, to offer them; the same at every call.
std::vector<const Relative*> RelativesOf(const Square<double>& square);

/// A relative drawn in any of the ways that only move the numbers.
std::optional<Square<double>> VariedWithinKind(const Square<double>& square, Random& random);

}  // namespace numorra
