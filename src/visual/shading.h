#pragma once

#include <optional>

#include "app/board/board.h"

namespace numorra {

/// Turns values into shades: the highest value of a board becomes white, 0 becomes the picked
/// colour, and the values between are interpolated.
class Shading {
 public:
  /// The scale of the board on the screen. A board whose highest value is 0 has no scale: every
  /// cell then gets the picked colour.
  Shading(const Board& board, Colour picked);

  /// The colour of a value; none if a channel would fall below black or a number does not fit.
  std::optional<Colour> Of(double value) const;

 private:
  Colour picked_;
  float scale_ = 0;
};

/// The contrast ratio of two colours, 1 (none) to 21, as defined by the Web Content Accessibility
/// Guidelines 2.1, which require 4.5 for text and 3 for marks.
double Contrast(Colour a, Colour b);

/// Black or white, whichever is more readable on the colour: the contrast is always 4.5 or more.
Colour ReadableOn(Colour background);

/// The colour fill: shades every value cell and writes its text in a readable colour. Does not
/// change totals; removes a drawing over the board. Does nothing if the main diagonal's total is 0
/// or there is no board.
void FillColours(Board& board, Colour picked);

}  // namespace numorra
