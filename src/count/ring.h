#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace numorra {

/// A set of up to 16 numbers: bit i is the i-th of those that are to be placed.
using RankSet = std::uint16_t;
inline constexpr std::size_t kRingNumbers = 16;
inline constexpr RankSet kAllRanks = 0xffff;

/// The numbers for two rings, ascending and below 32.
using RingNumbers = std::array<int, kRingNumbers>;

/// For all s and t: the triples of different numbers u, s - u and t - u, as sets. In a ring, u is a
/// corner, and the others are the middles of the two sides that meet in it.
class CornerTriples {
 public:
  /// Sums of two numbers are below it.
  static constexpr std::size_t kSums = 64;

  /// Each of the three numbers must be in its set.
  explicit CornerTriples(const RingNumbers& numbers, RankSet corners = kAllRanks,
                         RankSet firsts = kAllRanks, RankSet seconds = kAllRanks);

  std::span<const RankSet> Of(int s, int t) const {
    const std::size_t at = static_cast<std::size_t>(s) * kSums + static_cast<std::size_t>(t);
    return {triples_.data() + starts_[at], triples_.data() + starts_[at + 1]};
  }

  /// The numbers q for which there are triples of s and sum - q, as bits; sum is below kSums.
  std::uint64_t Partners(int s, int sum) const {
    return backwards_[static_cast<std::size_t>(s)] >> (kSums - 1 - static_cast<std::size_t>(sum));
  }

 private:
  std::array<std::uint64_t, kSums> backwards_{};  ///< by s: bit 63 - t if there are triples
  std::array<std::uint16_t, kSums * kSums + 1> starts_{};
  std::array<RankSet, kRingNumbers * kRingNumbers * kRingNumbers> triples_;
};

/// The sums that the sides of a ring must have, below 64. A ring is a cycle of eight cells, the
/// border of a 3 x 3 square: four corners, and the middles of the four sides between them.
struct RingSums {
  int Top, Right, Bottom, Left;
};

/// Which numbers each cell of a ring can hold.
struct RingCells {
  RankSet TopLeft = kAllRanks, Top = kAllRanks, TopRight = kAllRanks, Right = kAllRanks,
          BottomRight = kAllRanks, Bottom = kAllRanks, BottomLeft = kAllRanks, Left = kAllRanks;
};

/// The numbers in a ring, clockwise from the top left.
using Ring = std::array<int, 8>;

/// The rings of a set of eight of the numbers whose sides have these sums.
std::vector<Ring> RingsOf(const RingNumbers& numbers, RankSet eight, const RingSums& sums);

/// Fills rings with eight of 16 numbers.
///
/// Two opposite corners are chosen. Each of the other two corners then settles the middles of its
/// two sides, and these triples are looked up by the rests of the sides. What remains is to take
/// the pairs of one triple of each corner that have no number in common.
class RingFiller {
 public:
  RingFiller(const RingNumbers& numbers, const RingCells& cells);

  /// More fillings than a ring can have: after four corners, its sums leave no choice.
  static constexpr std::size_t kMostFillings = 16 * 15 * 14 * 13 + 1;
  using Fillings = std::array<RankSet, kMostFillings>;

  /// Writes the set of numbers of every filling whose sides have these sums; returns their count.
  std::size_t Fill(const RingSums& sums, Fillings& fillings) const;

 private:
  std::array<RankSet, 32> rankOf_{};               ///< by number: its bit
  std::uint64_t topLefts_ = 0, bottomRights_ = 0;  ///< bit n: the corner can hold the number n
  CornerTriples topRight_, bottomLeft_;
};

}  // namespace numorra
