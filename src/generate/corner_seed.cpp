#include "generate/corner_seed.h"

#include <algorithm>
#include <numeric>
#include <span>
#include <vector>

namespace numorra {
namespace {

/// The column of a unit's cell, by row, both from 0.
using Unit = std::vector<int>;

bool MeetsEachDiagonalOnce(const Unit& unit) {
  const int last = static_cast<int>(unit.size()) - 1;
  int falling = 0;
  int rising = 0;
  for (int row = 0; row <= last; ++row) {
    const int column = unit[static_cast<std::size_t>(row)];
    falling += column == row ? 1 : 0;
    rising += column == last - row ? 1 : 0;
  }
  return falling == 1 && rising == 1;
}

/// A unit of this order that needs no search.
Unit KnownUnit(int order, bool throughCorner) {
  const int last = order - 1;
  const int shift = order % 2 == 0 ? 1 : 2;
  const auto inwards = [&](int line) {  // the outer lines are swapped with their neighbours
    if (line < 2) return 1 - line;
    return line > last - 2 ? 2 * last - 1 - line : line;
  };
  Unit unit(static_cast<std::size_t>(order));
  for (int row = 0; row < order; ++row) {
    const int column = row == 0 ? 0 : row <= shift ? order - row : row - shift;
    const int place = throughCorner ? row : inwards(row);
    unit[static_cast<std::size_t>(place)] = throughCorner ? column : inwards(column);
  }
  return unit;
}

/// At least one in fifteen random permutations is a suitable unit. If none is drawn, the known one
/// is used, so that a random source that always returns the same number does not loop forever.
Unit DrawUnit(int order, bool throughCorner, Random& random) {
  constexpr int kMostDraws = 100;
  const int last = order - 1;
  Unit unit(static_cast<std::size_t>(order));
  std::iota(unit.begin(), unit.end(), 0);
  for (int draw = 0; draw < kMostDraws; ++draw) {
    Shuffle(std::span(unit).subspan(throughCorner ? 1 : 0), random);
    const bool meetsCorner = unit.front() == 0 || unit.front() == last || unit.back() == last;
    if ((throughCorner || !meetsCorner) && MeetsEachDiagonalOnce(unit)) return unit;
  }
  return KnownUnit(order, throughCorner);
}

/// Adds `count` units: equal shares of a few different ones per line.
void AddUnits(TurningSquare& square, int count, bool throughCorner, Random& random) {
  constexpr int kUnitsOfALine = 4;
  const int different = std::min(count, kUnitsOfALine * square.Order());
  for (int i = 0; i < different; ++i) {
    const int times = count / different + (i < count % different ? 1 : 0);
    const Unit unit = DrawUnit(square.Order(), throughCorner, random);
    for (int row = 1; row <= square.Order(); ++row)
      square(row, unit[static_cast<std::size_t>(row - 1)] + 1) += times;
  }
}

}  // namespace

void SeedCorner(TurningSquare& square, int base, int corner, Random& random) {
  const int order = square.Order();
  square.Fill(1);
  AddUnits(square, corner - 1, true, random);
  AddUnits(square, HighestCorner(order, base) - corner, false, random);
  const int turnsToCome = order / 2 - 1;
  for (int turn = 0; (turn + turnsToCome) % 4 != 0; ++turn)
    square.RotateBoard90();
}

}  // namespace numorra
