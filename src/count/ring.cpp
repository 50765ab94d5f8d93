#include "count/ring.h"

#include <bit>

namespace numorra {

CornerTriples::CornerTriples(const RingNumbers& numbers, RankSet corners, RankSet firsts,
                             RankSet seconds) {
  const auto bit = [](std::size_t rank) { return static_cast<RankSet>(1U << rank); };
  const auto forEach = [&](auto visit) {
    for (std::size_t u = 0; u < kRingNumbers; ++u) {
      if ((corners & bit(u)) == 0) continue;
      for (std::size_t x = 0; x < kRingNumbers; ++x) {
        if (x == u || (firsts & bit(x)) == 0) continue;
        const int s = numbers[u] + numbers[x];
        for (std::size_t y = 0; y < kRingNumbers; ++y) {
          if (y == u || y == x || (seconds & bit(y)) == 0) continue;
          const int t = numbers[u] + numbers[y];
          visit(static_cast<std::size_t>(s) * kSums + static_cast<std::size_t>(t),
                static_cast<RankSet>(bit(u) | bit(x) | bit(y)));
        }
      }
    }
  };
  forEach([&](std::size_t at, RankSet) {
    ++starts_[at + 1];
    backwards_[at / kSums] |= std::uint64_t{1} << (kSums - 1 - at % kSums);
  });
  for (std::size_t at = 1; at < starts_.size(); ++at)
    starts_[at] = static_cast<std::uint16_t>(starts_[at] + starts_[at - 1]);
  auto ends = starts_;
  forEach([&](std::size_t at, RankSet triple) { triples_[ends[at]++] = triple; });
}

RingFiller::RingFiller(const RingNumbers& numbers, const RingCells& cells)
    : topRight_(numbers, cells.TopRight, cells.Top, cells.Right),
      bottomLeft_(numbers, cells.BottomLeft, cells.Left, cells.Bottom) {
  for (std::size_t rank = 0; rank < numbers.size(); ++rank) {
    const auto number = static_cast<std::size_t>(numbers[rank]);
    rankOf_[number] = static_cast<RankSet>(1U << rank);
    topLefts_ |= std::uint64_t{(cells.TopLeft >> rank) & 1U} << number;
    bottomRights_ |= std::uint64_t{(cells.BottomRight >> rank) & 1U} << number;
  }
}

std::size_t RingFiller::Fill(const RingSums& sums, Fillings& fillings) const {
  std::size_t count = 0;
  for (std::uint64_t ps = topLefts_; ps != 0; ps &= ps - 1) {
    const int p = std::countr_zero(ps);
    const int top = sums.Top - p;
    const int left = sums.Left - p;
    if (top < 0 || left < 0) continue;
    std::uint64_t qs = bottomRights_ & topRight_.Partners(top, sums.Right) &
                       bottomLeft_.Partners(left, sums.Bottom) & ~(std::uint64_t{1} << p);
    for (; qs != 0; qs &= qs - 1) {
      const int q = std::countr_zero(qs);
      const auto chosen = static_cast<RankSet>(rankOf_[static_cast<std::size_t>(p)] |
                                               rankOf_[static_cast<std::size_t>(q)]);
      const auto others = bottomLeft_.Of(left, sums.Bottom - q);
      for (const RankSet one : topRight_.Of(top, sums.Right - q)) {
        const int clash = one & chosen;
        const auto full = static_cast<RankSet>(one | chosen);
        for (const RankSet other : others) {
          // No branches: they would be mispredicted, and take more than twice the time.
          fillings[count] = static_cast<RankSet>(other | full);
          count += ((other & full) | clash) == 0 ? 1 : 0;
        }
      }
    }
  }
  return count;
}

std::vector<Ring> RingsOf(const RingNumbers& numbers, RankSet eight, const RingSums& sums) {
  std::uint64_t set = 0;
  for (std::size_t rank = 0; rank < numbers.size(); ++rank)
    set |= std::uint64_t{(eight >> rank) & 1U} << static_cast<unsigned>(numbers[rank]);
  std::vector<Ring> rings;
  Ring ring{};
  // Takes the number for a cell, if it is free, and calls `then`.
  const auto put = [&](std::size_t cell, int number, auto then) {
    if (number < 1 || number >= 32 || (set >> static_cast<unsigned>(number) & 1U) == 0) return;
    ring[cell] = number;
    set ^= std::uint64_t{1} << static_cast<unsigned>(number);
    then();
    set ^= std::uint64_t{1} << static_cast<unsigned>(number);
  };
  // Fills a corner and the middle of the side from the corner before it.
  const auto side = [&](std::size_t corner, int sum, auto then) {
    for (const int number : numbers) {
      put(corner, number, [&] { put(corner - 1, sum - ring[corner - 2] - number, then); });
    }
  };
  for (const int number : numbers) {
    put(0, number, [&] {
      side(2, sums.Top, [&] {
        side(4, sums.Right, [&] {
          side(6, sums.Bottom,
               [&] { put(7, sums.Left - ring[0] - ring[6], [&] { rings.push_back(ring); }); });
        });
      });
    });
  }
  return rings;
}

}  // namespace numorra
