#include <algorithm>
#include <cctype>

#include "study/product.h"
#include "study/terms.h"

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
  return digits <= kMostDigits ? shown : "a number of " + std::to_string(digits) + " digits";
}

}  // namespace

/// Products are compared in units: all lines have n numbers, so they differ from the products by
/// one factor.
Judgement JudgeMultiplicative(const Facts& facts) {
  if (!facts.Square.HasUnits()) {
    return TooLarge("the numbers have too many digits to be multiplied exactly");
  }
  const auto& units = facts.Square.Units();
  if (const auto zero = std::find(units.begin(), units.end(), 0); zero != units.end()) {
    const int cell = static_cast<int>(zero - units.begin());
    return Fails(facts.NumberAndPlace(cell) + " makes the products 0",
                 {facts.Square.PlaceOf(cell)});
  }
  const Product first = ProductOf(facts.Lines.front(), facts.Square);
  for (const Line line : facts.Lines) {
    const Product product = ProductOf(line, facts.Square);
    if (product == first) continue;
    return Fails("row 1 and " + NameOf(line, facts.N()) + " have different products: " +
                     ShownProduct(first, facts) + " and " + ShownProduct(product, facts),
                 PlacesOf(line, facts.N()));
  }
  return Holds("the numbers in every row, column and main diagonal have the product " +
               ShownProduct(first, facts));
}

Judgement JudgeAdditionMultiplication(const Facts& facts) {
  return All(facts, {"magic", "multiplicative"}, Holds("it is magic and multiplicative"));
}

}  // namespace numorra
