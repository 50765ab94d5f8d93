#pragma once

#include <vector>

#include "app/board/square.h"

namespace numorra {

/// A square of numbers, and the place of each number.
class PlacedNumbers {
 public:
  explicit PlacedNumbers(Square<double> square);

  /// Whether each of the numbers 1 to n x n occurs once; PlaceOf is for such squares only.
  bool IsNormal() const { return isNormal_; }

  int Order() const { return square_.Order(); }
  const Square<double>& Numbers() const { return square_; }
  int At(Place place) const { return static_cast<int>(square_[place]); }
  Place PlaceOf(int number) const { return places_[static_cast<std::size_t>(number)]; }

 private:
  Square<double> square_;
  std::vector<Place> places_;  ///< by number; row 0 for those that are missing
  bool isNormal_;
};

}  // namespace numorra
