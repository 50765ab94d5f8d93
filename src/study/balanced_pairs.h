#pragma once

#include <array>
#include <vector>

#include "app/board/random.h"

namespace numorra {

/// A place for a number whose negative is at a partner's place: the lines, from 0, in which it
/// counts, and whether it counts with its sign (1), the other sign (-1) or not at all (0).
struct PairedPlace {
  std::array<int, 2> Lines;
  std::array<int, 2> Weights;
};

/// Draws random numbers for the places so that every line adds up to 0. Each of `sizes`, with
/// either sign, is used once; sizes are positive, ascending, and as many as there are places.
///
/// A Metropolis walk (Metropolis and others 1953) over all ways to place them, whose cost is the
/// sum of the lines' distances from 0. A step exchanges two neighbouring sizes and keeps the signs
/// in place, exchanges the numbers of any two places, or turns a sign. The walk stops at a way of
/// cost 0 with a small chance per step, so each is chosen in proportion to the time spent there,
/// which in the long run is the same for all. It does not give up, so such numbers must exist.
///
/// `temperature` is in units of the sizes: low for many and long lines.
std::vector<int> BalancedPairs(const std::vector<PairedPlace>& places,
                               const std::vector<int>& sizes, double temperature, Random& random);

}  // namespace numorra
