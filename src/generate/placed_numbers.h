#pragma once

#include <vector>

#include "app/board/place.h"

namespace numorra {

/// A square of numbers in reading order, and where each of them stands.
class PlacedNumbers {
 public:
  PlacedNumbers(int order, std::vector<double> numbers);

  /// Whether each of the numbers 1 to n x n stands in it once; what follows is for such squares.
  bool IsNormal() const { return isNormal_; }

  int Order() const { return order_; }
  const std::vector<double>& Numbers() const { return numbers_; }
  int At(Place place) const { return static_cast<int>(numbers_[IndexOf(place, order_)]); }
  Place PlaceOf(int number) const { return places_[static_cast<std::size_t>(number)]; }

 private:
  int order_;
  std::vector<double> numbers_;
  std::vector<Place> places_;  ///< by number; row 0 for those that are missing
  bool isNormal_;
};

}  // namespace numorra
