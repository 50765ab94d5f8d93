#include "generate/placed_numbers.h"

#include <algorithm>
#include <utility>

namespace numorra {

PlacedNumbers::PlacedNumbers(int order, std::vector<double> numbers)
    : order_(order), numbers_(std::move(numbers)), places_(numbers_.size() + 1) {
  for (std::size_t i = 0; i < numbers_.size(); ++i) {
    const double number = numbers_[i];
    if (number < 1 || number > static_cast<double>(numbers_.size())) continue;
    const auto whole = static_cast<std::size_t>(number);
    if (static_cast<double>(whole) == number) places_[whole] = PlaceAt(i, order_);
  }
  isNormal_ =
      std::none_of(places_.begin() + 1, places_.end(), [](Place place) { return place.Row == 0; });
}

}  // namespace numorra
