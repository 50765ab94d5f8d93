#include "generate/placed_numbers.h"

#include <algorithm>
#include <utility>

namespace numorra {

PlacedNumbers::PlacedNumbers(Square<double> square)
    : square_(std::move(square)), places_(static_cast<std::size_t>(square_.Size()) + 1) {
  for (int cell = 0; cell < square_.Size(); ++cell) {
    const double number = square_[cell];
    if (number < 1 || number > square_.Size()) continue;
    const auto whole = static_cast<std::size_t>(number);
    if (static_cast<double>(whole) == number) places_[whole] = square_.PlaceOf(cell);
  }
  isNormal_ =
      std::none_of(places_.begin() + 1, places_.end(), [](Place place) { return place.Row == 0; });
}

}  // namespace numorra
