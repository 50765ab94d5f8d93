#pragma once

#include <optional>

#include "app/board/board.h"

namespace numorra {

/// How values become shades: the highest value of a board turns the picked colour white, and lower
/// ones lie in proportion between the picked colour, for 0, and white.
class Shading {
 public:
  /// The scale of the board on the screen. A board whose highest value is 0 has none: every cell
  /// then gets the picked colour itself.
  Shading(const Board& board, Colour picked);

  /// The colour of a value; nothing where a channel would fall below black or a number does not
  /// fit.
  std::optional<Colour> Of(double value) const;

 private:
  Colour picked_;
  float scale_ = 0;
};

/// How well two colours stand out from each other, 1 (not at all) to 21, as the web content
/// accessibility guidelines 2.1 reckon it: texts ask for 4.5, marks for 3.
double Contrast(Colour a, Colour b);

/// Black or white, whichever can be read better on the colour: always at a contrast of 4.5 or more.
Colour ReadableOn(Colour background);

/// The colour fill: shades every value cell, with its text in a readable colour. Totals are left
/// alone, and a drawing over the board is taken away. Does nothing while the main diagonal's total
/// is 0 or there is no board.
void FillColours(Board& board, Colour picked);

}  // namespace numorra
