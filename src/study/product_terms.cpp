#include <algorithm>
#include <cctype>

#include "study/product.h"
#include "study/terms.h"
#include "words/say.h"

namespace numorra {
namespace {

Product ProductOf(Line line, const NumberSquare& square) {
  Product product;
  for (int i = 0; i < square.Order(); ++i)
    product.MultiplyBy(square.Units()[line.Cell(i, square.Order())]);
  return product;
}

/// The product of a line as it is shown; only its length if it is long.
std::string ShownProduct(const Product& product, const Facts& facts) {
  constexpr std::ptrdiff_t kMostDigits = 30;
  const std::string shown = facts.Square.Shown(product.AsDecimal(), facts.N());
  const auto digits = std::count_if(shown.begin(), shown.end(),
                                    [](unsigned char c) { return std::isdigit(c) != 0; });
  if (digits <= kMostDigits) return Written(shown);
  return SayCounted("a number of %1 digit", "a number of %1 digits", digits);
}

}  // namespace

/// Products are compared in units: all lines have n numbers, so they differ from the products by
/// one factor.
Judgement JudgeMultiplicative(const Facts& facts) {
  if (!facts.Square.HasUnits()) {
    return TooLarge(Say("the numbers have too many digits to be multiplied exactly"));
  }
  const auto& units = facts.Square.Units();
  if (const auto zero = std::find(units.begin(), units.end(), 0); zero != units.end()) {
    const int cell = static_cast<int>(zero - units.begin());
    return Fails(Say("%1 makes the products 0", facts.NumberAndPlace(cell)),
                 {facts.Square.PlaceOf(cell)});
  }
  const Product first = ProductOf(facts.Lines.front(), facts.Square);
  for (const Line line : facts.Lines) {
    const Product product = ProductOf(line, facts.Square);
    if (product == first) continue;
    return Fails(Say("row 1 and %1 have different products: %2 and %3", NameOf(line, facts.N()),
                     ShownProduct(first, facts), ShownProduct(product, facts)),
                 PlacesOf(line, facts.N()));
  }
  return Holds(Say("the numbers in every row, column and main diagonal have the product %1",
                   ShownProduct(first, facts)));
}

Judgement JudgeAdditionMultiplication(const Facts& facts) {
  return All(facts, {"magic", "multiplicative"}, Holds(Say("it is magic and multiplicative")));
}

}  // namespace numorra
