#include "count/order5_diagonals.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace numorra {
namespace {

constexpr int kSide = 5;
constexpr int kCentreCell = 12;
constexpr int kNumbers = 25;
constexpr int kMiddle = 13;
constexpr int kLineSum = 65;

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

Order5Diagonals::Order5Diagonals(const Square<int>& givens)
    : givens_(givens), maps_(MapsThatKeep(givens, MapsOfDiagonals())) {
  Square<int> around = givens;
  const int centre = std::exchange(around[kCentreCell], 0);
  canComplement_ = around == Square<int>(kSide) && (centre == 0 || centre == kMiddle);
  SplitArrangements();
}

std::vector<DiagonalSet> Order5Diagonals::Sets(bool complements) const {
  NumberSet needed = 0;
  NumberSet excluded = 0;
  for (int cell = 0; cell < kNumbers; ++cell) {
    if (givens_[cell] == 0 || cell == kCentreCell) continue;
    const bool isDiagonal =
        std::find(Filling::kCells.begin(), Filling::kCells.end(), cell) != Filling::kCells.end();
    (isDiagonal ? needed : excluded) |= SetOf(givens_[cell]);
  }
  const bool halves = complements && canComplement_;
  const int centre = givens_[kCentreCell];
  const int last = halves ? kMiddle : kNumbers;
  auto sets = DiagonalSets(std::max(1, centre), centre == 0 ? last : centre);
  std::erase_if(sets, [&](const DiagonalSet& set) {
    const NumberSet all = set.Others | SetOf(set.Centre);
    const bool fits = (set.Others & needed) == needed && (all & excluded) == 0;
    const bool twice = halves && set.Centre == kMiddle && ComplementOf(set.Others) < set.Others;
    return !fits || twice;
  });
  return sets;
}

int Order5Diagonals::WeightOf(const DiagonalSet& set) const {
  if (!canComplement_) return 1;
  return set.Centre == kMiddle && ComplementOf(set.Others) == set.Others ? 1 : 2;
}

void Order5Diagonals::SplitArrangements() {
  const auto ascents = FirstAmongImages(maps_, Filling::kCells);
  const auto slotOf = [](int cell) {
    return At(static_cast<int>(std::find(Filling::kCells.begin(), Filling::kCells.end(), cell) -
                               Filling::kCells.begin()));
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
    for (int i = 0; i < 4; ++i)
      falling |= 1U << arrangement[At(i)];
    auto split = std::find_if(splits_.begin(), splits_.end(),
                              [&](const Split& one) { return one.Falling == falling; });
    if (split == splits_.end()) split = splits_.insert(splits_.end(), Split{falling, {}});
    split->Arrangements.push_back(arrangement);
  } while (std::next_permutation(arrangement.begin(), arrangement.end()));
}

RingCells Order5Diagonals::CellsOf(const std::array<int, 8>& ring,
                                   const RingNumbers& numbers) const {
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

bool Order5Diagonals::Fits(const std::array<int, 8>& numbers) const {
  for (int i = 0; i < 8; ++i) {
    const int given = givens_[Filling::kCells[At(i)]];
    if (given != 0 && given != numbers[At(i)]) return false;
  }
  return true;
}

std::vector<Order5Diagonals::Filling> Order5Diagonals::FillingsOf(const DiagonalSet& set) const {
  std::array<int, 8> eight{};
  for (int number = 1, i = 0; number <= kNumbers; ++number) {
    if ((set.Others & SetOf(number)) != 0) eight[At(i++)] = number;
  }
  std::vector<Filling> fillings;
  for (const Split& split : splits_) {
    int falling = set.Centre;
    for (int i = 0; i < 8; ++i)
      falling += (split.Falling >> i & 1U) != 0 ? eight[At(i)] : 0;
    if (falling != kLineSum) continue;
    for (const Arrangement& arrangement : split.Arrangements) {
      std::array<int, 8> n{};
      for (int i = 0; i < 8; ++i)
        n[At(i)] = eight[arrangement[At(i)]];
      if (!Fits(n)) continue;
      const auto rest = [&](int a, int b) { return kLineSum - n[At(a)] - n[At(b)]; };
      fillings.push_back(
          {set.Centre,
           n,
           {.Top = rest(0, 4), .Right = rest(2, 5), .Bottom = rest(3, 7), .Left = rest(1, 6)},
           {.Top = rest(1, 5), .Right = rest(3, 4), .Bottom = rest(2, 6), .Left = rest(0, 7)}});
    }
  }
  return fillings;
}

RingNumbers NumbersBeside(const DiagonalSet& set) {
  RingNumbers numbers{};
  for (int number = 1, i = 0; number <= kNumbers; ++number) {
    const NumberSet diagonals = set.Others | SetOf(set.Centre);
    if ((diagonals & SetOf(number)) == 0) numbers[At(i++)] = number;
  }
  return numbers;
}

}  // namespace numorra
