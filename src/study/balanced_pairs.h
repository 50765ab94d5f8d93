#pragma once

#include <array>
#include <vector>

#include "app/board/random.h"

namespace numorra {

/// A place for a number whose negative stands at a partner's place: the lines, from 0, that it
/// counts in, and whether with its sign (1), the other one (-1) or not at all (0).
struct PairedPlace {
  std::array<int, 2> Lines;
  std::array<int, 2> Weights;
};

/// Numbers for the places, drawn at random, so that every line adds up to 0: each of `sizes`, which
/// are positive, ascending, and as many as there are places, once with either sign.
///
/// A Metropolis walk (Metropolis and others 1953) over all ways to place them, whose cost is the
/// sum of what the lines are off 0. A step exchanges two sizes next to each other, without their
/// signs, or the numbers of any two places, or turns a sign. Of the ways at cost 0 that the walk
/// comes to, it takes one by the time that it spends there, which in the long run prefers none.
/// Goes on until there is one: such numbers must exist.
///
/// `temperature` is in units of the sizes: low for many lines and long ones.
std::vector<int> BalancedPairs(const std::vector<PairedPlace>& places,
                               const std::vector<int>& sizes, double temperature, Random& random);

}  // namespace numorra
