#include "count/kept_images.h"

#include <algorithm>
#include <iterator>
#include <numeric>

#include "study/images.h"

namespace numorra {

std::vector<CellMap> EightImages(int order) {
  std::vector<CellMap> maps;
  for (int image = 0; image < kImages; ++image) {
    CellMap map;
    for (int cell = 0; cell < order * order; ++cell)
      map.push_back(SourceInImage(image, cell / order, cell % order, order));
    maps.push_back(std::move(map));
  }
  return maps;
}

std::vector<CellMap> MapsThatKeep(const Square<int>& givens, const std::vector<CellMap>& maps) {
  std::vector<CellMap> kept;
  std::copy_if(maps.begin(), maps.end(), std::back_inserter(kept), [&](const CellMap& map) {
    for (int cell = 0; cell < givens.Size(); ++cell) {
      if (givens[cell] != 0 && map[static_cast<std::size_t>(cell)] != cell) return false;
    }
    return true;
  });
  return kept;
}

std::vector<Ascent> FirstAmongImages(const std::vector<CellMap>& maps, std::span<const int> cells) {
  std::vector<Ascent> ascents;
  for (const CellMap& map : maps) {
    const auto moved = std::find_if(cells.begin(), cells.end(), [&](int cell) {
      return map[static_cast<std::size_t>(cell)] != cell;
    });
    if (moved == cells.end()) continue;
    const Ascent ascent{*moved, map[static_cast<std::size_t>(*moved)]};
    const bool known = std::any_of(ascents.begin(), ascents.end(), [&](const Ascent& other) {
      return other.Smaller == ascent.Smaller && other.Larger == ascent.Larger;
    });
    if (!known) ascents.push_back(ascent);
  }
  return ascents;
}

std::vector<Ascent> FirstThatKeeps(const Square<int>& givens) {
  std::vector<int> cells(static_cast<std::size_t>(givens.Size()));
  std::iota(cells.begin(), cells.end(), 0);
  return FirstAmongImages(MapsThatKeep(givens, EightImages(givens.Order())), cells);
}

}  // namespace numorra
