#include "count/count_wish.h"

#include <algorithm>

namespace numorra {

bool CountWish::Meets(const Square<int>& square) const {
  if (Terms.empty()) return true;
  const Facts facts{NumberSquare(Square<double>(square))};
  return std::all_of(Terms.begin(), Terms.end(),
                     [&](const Term* term) { return static_cast<bool>(term->Judge(facts)); });
}

}  // namespace numorra
