#include "study/kept_relatives.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>

#include "app/board/numbers.h"
#include "study/images.h"
#include "study/moved_places.h"
#include "study/terms.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The numbers times `factor` plus `summand`. Nothing if a cell cannot take the result.
std::optional<Square<double>> Scaled(const NumberSquare& square, int factor, int summand) {
  if (!square.HasUnits()) return std::nullopt;
  Square<double> scaled = square.Numbers();
  for (int cell = 0; cell < scaled.Size(); ++cell) {
    const std::int64_t result = square.Units()[cell] * factor + summand * square.One();
    if (DigitsOf(square.Shown(result)) > kMostCellDigits) return std::nullopt;
    scaled[cell] = static_cast<double>(result) / static_cast<double>(square.One());
  }
  return scaled;
}

std::optional<Square<double>> WithNumberAdded(const Square<double>& square, Random& random) {
  return Scaled(NumberSquare(square), 1, random.Between(1, square.Size()));
}

std::optional<Square<double>> WithNumbersMultiplied(const Square<double>& square, Random& random) {
  constexpr int kMostFactor = 9;
  return Scaled(NumberSquare(square), random.Between(2, kMostFactor), 0);
}

/// The terms that hold for the square and that a relative must keep.
std::vector<const Term*> KindOf(const Facts& facts) {
  std::vector<const Term*> kind;
  for (const Term& term : Terms()) {
    if (term.Group->Relates && term.Judge(facts)) kind.push_back(&term);
  }
  return kind;
}

/// A square and what its relatives must keep, judged once.
struct Judged {
  explicit Judged(const Square<double>& square)
      : Numbers(square),
        Standard(StandardForm(square)),
        Kind(KindOf(Facts(NumberSquare(square)))) {}

  bool Is(const std::string& name) const {
    return std::any_of(Kind.begin(), Kind.end(),
                       [&](const Term* term) { return term->Name == name; });
  }

  bool IsKeptBy(const Square<double>& other) const {
    if (StandardForm(other) == Standard) return false;
    const Facts facts{NumberSquare(other)};
    return std::all_of(Kind.begin(), Kind.end(),
                       [&](const Term* term) { return bool(term->Judge(facts)); });
  }

  const Square<double>& Numbers;
  Square<double> Standard;
  std::vector<const Term*> Kind;
};

std::optional<Square<double>> Draw(const Relative& relative, const Judged& square, Random& random) {
  constexpr int kDraws = 20;
  if (!square.Is(relative.Term)) return std::nullopt;
  for (int draw = 0; draw < kDraws; ++draw) {
    auto drawn = relative.Draw(square.Numbers, random);
    if (!drawn) return std::nullopt;
    if (square.IsKeptBy(*drawn)) return drawn;
  }
  return std::nullopt;
}

}  // namespace

const std::array<Relative, 8> kRelatives = {{
    {"MoveRoundx", Mark("Move &Round"),
     Mark("Rows and columns move round, and wrapped diagonals stay wrapped diagonals: the square "
          "stays pandiagonal, and most-perfect if it is."),
     "pandiagonal", true, MovedRound},
    {"MultiplyPlacesx", Mark("Multiply &Places"),
     Mark("Every place, counted from the centre, is multiplied by one number: lines, including "
          "wrapped diagonals, stay lines of the same kind, and opposite cells stay opposite."),
     "magic", true, WithPlacesMultiplied},
    {"DiagonalsAsLinesx", Mark("&Diagonals as Lines"),
     Mark("Wrapped diagonals become rows and columns, and these become wrapped diagonals: the "
          "square stays pandiagonal, and associative if it is."),
     "pandiagonal", true, WithDiagonalsAsLines},
    {"ExchangeOppositesx", Mark("Exchange &Opposite Lines"),
     Mark("Pairs of opposite rows change places, and so do pairs of opposite columns: opposite "
          "cells stay opposite, so the square stays associative."),
     "associative", true, WithOppositesExchanged},
    {"ExchangeHalvesx", Mark("Exchange Lines of Two &Halves"),
     Mark("Pairs of rows half the order apart change places, and so do such pairs of columns: "
          "blocks of 2 x 2 keep their sum, so the square stays most-perfect."),
     "compact", true, WithHalvesExchanged},
    {"ExchangeRingsx", Mark("Exchange in R&ings"),
     Mark("Pairs within the sides of each ring change places, and the squares within are turned: "
          "every ring keeps its numbers, so the square stays bordered."),
     "concentric", true, WithRingsExchanged},
    {"AddToAllx", Mark("&Add to All"),
     Mark("One number is added to all: lines of equal length that had equal sums still do."),
     "semi-magic", false, WithNumberAdded},
    {"MultiplyAllx", Mark("&Multiply All"),
     Mark("All numbers are multiplied by the same factor: equal sums stay equal."), "semi-magic",
     false, WithNumbersMultiplied},
}};

std::optional<Square<double>> DrawRelative(const Relative& relative, const Square<double>& square,
                                           Random& random) {
  return Draw(relative, Judged(square), random);
}

std::vector<const Relative*> RelativesOf(const Square<double>& square) {
  const Judged judged(square);
  TickingClock still(1);
  ClockSeededRandom random(still);
  std::vector<const Relative*> offered;
  for (const Relative& relative : kRelatives) {
    if (Draw(relative, judged, random)) offered.push_back(&relative);
  }
  return offered;
}

std::optional<Square<double>> VariedWithinKind(const Square<double>& square, Random& random) {
  const Judged judged(square);
  std::vector<const Relative*> relatives;
  for (const Relative& relative : kRelatives) {
    if (relative.SameNumbers) relatives.push_back(&relative);
  }
  Shuffle(std::span(relatives), random);
  for (const Relative* const relative : relatives) {
    if (auto varied = Draw(*relative, judged, random)) return varied;
  }
  return std::nullopt;
}

}  // namespace numorra
