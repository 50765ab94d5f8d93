#include "count/order5_count.h"

#include <algorithm>
#include <numeric>

namespace numorra {
namespace {

constexpr int kSide = 5;
constexpr int kCentreCell = 12;
constexpr int kNumbers = 25;
constexpr int kMiddle = 13;
constexpr int kLineSum = 65;

/// The cells of the falling diagonal, then those of the rising one.
constexpr std::array<int, 8> kDiagonalCells = {0, 6, 18, 24, 4, 8, 16, 20};

/// The cells of the rings in the order of RingCells, clockwise from the top left.
constexpr std::array<int, 8> kOuterRing = {1, 2, 3, 13, 23, 22, 21, 11};
constexpr std::array<int, 8> kInnerRing = {5, 7, 9, 14, 19, 17, 15, 10};

/// The 32 rearrangements of rows and columns that keep both diagonals.
std::vector<CellMap> MapsOfDiagonals() {
  std::vector<CellMap> maps;
  std::array<int, kSide> lines = {0, 1, 2, 3, 4};
  do {
    bool opposite = true;
    for (int i = 0; i < kSide; ++i)
      opposite &= lines[static_cast<std::size_t>(i)] + lines[static_cast<std::size_t>(4 - i)] == 4;
    if (!opposite) continue;
    for (const bool upsideDown : {false, true}) {
      for (const bool exchanged : {false, true}) {
        CellMap map;
        for (int cell = 0; cell < kNumbers; ++cell) {
          const int row = lines[static_cast<std::size_t>(cell / kSide)];
          const int column = lines[static_cast<std::size_t>(cell % kSide)];
          const int from = upsideDown ? kSide - 1 - row : row;
          map.push_back(exchanged ? column * kSide + from : from * kSide + column);
        }
        maps.push_back(std::move(map));
      }
    }
  } while (std::next_permutation(lines.begin(), lines.end()));
  return maps;
}

NumberSet SetOf(int number) {
  return NumberSet{1} << static_cast<unsigned>(number);
}

/// The set of 26 minus every number.
NumberSet ComplementOf(NumberSet numbers) {
  NumberSet complement = 0;
  for (int number = 1; number <= kNumbers; ++number) {
    if ((numbers & SetOf(number)) != 0) complement |= SetOf(kNumbers + 1 - number);
  }
  return complement;
}

std::size_t At(int index) {
  return static_cast<std::size_t>(index);
}

}  // namespace

Order5Count::Order5Count(const Square<int>& givens)
    : givens_(givens), counts_(std::size_t{kAllRanks} + 1) {
  const auto maps = MapsThatKeep(givens, MapsOfDiagonals());
  const auto images = MapsThatKeep(givens, EightImages(kSide));
  imagesEach_ = static_cast<std::int64_t>(maps.size() / images.size());
  SplitArrangements(FirstAmongImages(maps, kDiagonalCells));

  NumberSet needed = 0;
  NumberSet excluded = 0;
  for (int cell = 0; cell < kNumbers; ++cell) {
    if (givens[cell] == 0 || cell == kCentreCell) continue;
    const bool isDiagonal =
        std::find(kDiagonalCells.begin(), kDiagonalCells.end(), cell) != kDiagonalCells.end();
    (isDiagonal ? needed : excluded) |= SetOf(givens[cell]);
  }
  const int centre = givens[kCentreCell];
  complements_ = needed == 0 && excluded == 0 && (centre == 0 || centre == kMiddle);
  for (const DiagonalSet& set :
       DiagonalSets(std::max(1, centre), centre == 0 ? kNumbers : centre)) {
    const NumberSet all = set.Others | SetOf(set.Centre);
    const bool fits = (set.Others & needed) == needed && (all & excluded) == 0;
    if (fits && WeightOf(set) > 0) sets_.push_back(set);
  }
}

/// How often the set's squares count, if complements are not counted by themselves.
std::int64_t Order5Count::WeightOf(const DiagonalSet& set) const {
  if (!complements_) return 1;
  if (set.Centre != kMiddle) return set.Centre < kMiddle ? 2 : 0;
  const NumberSet complement = ComplementOf(set.Others);
  if (complement == set.Others) return 1;
  return set.Others < complement ? 2 : 0;
}

void Order5Count::SplitArrangements(const std::vector<Ascent>& ascents) {
  const auto slotOf = [](int cell) {
    return At(static_cast<int>(std::find(kDiagonalCells.begin(), kDiagonalCells.end(), cell) -
                               kDiagonalCells.begin()));
  };
  std::vector<std::pair<std::size_t, std::size_t>> slots;
  slots.reserve(ascents.size());
  for (const Ascent& ascent : ascents)
    slots.emplace_back(slotOf(ascent.Smaller), slotOf(ascent.Larger));
  Arrangement arrangement;
  std::iota(arrangement.begin(), arrangement.end(), std::uint8_t{0});
  do {
    const bool first = std::all_of(slots.begin(), slots.end(), [&](const auto& pair) {
      return arrangement[pair.first] < arrangement[pair.second];
    });
    if (!first) continue;
    std::uint32_t falling = 0;
    for (int i = 0; i < kOthers / 2; ++i)
      falling |= 1U << arrangement[At(i)];
    auto split = std::find_if(splits_.begin(), splits_.end(),
                              [&](const Split& one) { return one.Falling == falling; });
    if (split == splits_.end()) split = splits_.insert(splits_.end(), Split{falling, {}});
    split->Arrangements.push_back(arrangement);
  } while (std::next_permutation(arrangement.begin(), arrangement.end()));
}

/// A given cell holds its number, and other cells none of the givens.
RingCells Order5Count::CellsOf(const std::array<int, kOthers>& ring,
                               std::span<const int, kRingNumbers> numbers) const {
  const auto setOf = [&](int number) {
    const auto found = std::find(numbers.begin(), numbers.end(), number);
    return found == numbers.end() ? 0 : 1 << (found - numbers.begin());
  };
  int givens = 0;
  for (const int number : givens_)
    givens |= number == 0 ? 0 : setOf(number);
  const auto cell = [&](int i) {
    const int number = givens_[ring[At(i)]];
    return static_cast<RankSet>(number == 0 ? kAllRanks & ~givens : setOf(number));
  };
  return {cell(0), cell(1), cell(2), cell(3), cell(4), cell(5), cell(6), cell(7)};
}

bool Order5Count::Fits(const std::array<int, kOthers>& numbers) const {
  for (int i = 0; i < kOthers; ++i) {
    const int given = givens_[kDiagonalCells[At(i)]];
    if (given != 0 && given != numbers[At(i)]) return false;
  }
  return true;
}

std::int64_t Order5Count::CountOf(const DiagonalSet& set) {
  std::array<int, kOthers> eight{};
  std::array<int, kRingNumbers> left{};
  for (int number = 1, i = 0, j = 0; number <= kNumbers; ++number) {
    if (number == set.Centre) continue;
    ((set.Others & SetOf(number)) != 0 ? eight[At(i++)] : left[At(j++)]) = number;
  }
  const RingFiller outer(left, CellsOf(kOuterRing, left));
  const RingFiller inner(left, CellsOf(kInnerRing, left));

  std::int64_t found = 0;
  for (const Split& split : splits_) {
    int falling = set.Centre;
    for (int i = 0; i < kOthers; ++i)
      falling += (split.Falling >> i & 1U) != 0 ? eight[At(i)] : 0;
    if (falling != kLineSum) continue;
    for (const Arrangement& arrangement : split.Arrangements) {
      std::array<int, kOthers> n;
      for (int i = 0; i < kOthers; ++i)
        n[At(i)] = eight[arrangement[At(i)]];
      if (!Fits(n)) continue;
      // n[0] to n[3] are in (1, 1), (2, 2), (4, 4), (5, 5); n[4] to n[7] in (1, 5), (2, 4),
      // (4, 2), (5, 1).
      const std::size_t fillings = outer.Fill({kLineSum - n[0] - n[4], kLineSum - n[2] - n[5],
                                               kLineSum - n[3] - n[7], kLineSum - n[1] - n[6]},
                                              outer_);
      if (fillings == 0) continue;
      const std::size_t others = inner.Fill({kLineSum - n[1] - n[5], kLineSum - n[3] - n[4],
                                             kLineSum - n[2] - n[6], kLineSum - n[0] - n[7]},
                                            inner_);
      for (std::size_t i = 0; i < fillings; ++i)
        ++counts_[outer_[i]];
      for (std::size_t i = 0; i < others; ++i)
        found += counts_[kAllRanks ^ inner_[i]];
      for (std::size_t i = 0; i < fillings; ++i)
        counts_[outer_[i]] = 0;
    }
  }
  return found * imagesEach_ * WeightOf(set);
}

}  // namespace numorra
