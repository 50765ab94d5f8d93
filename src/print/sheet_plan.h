#pragma once

#include <QRectF>
#include <QSize>
#include <QSizeF>

#include "print/sheet_options.h"

namespace numorra {

/// Where things stand on the pages of a worksheet, in millimetres: a header, slots of equal size
/// for the puzzles, and a footer. A slot has a line for a name, a caption, a board, and room below
/// it.
struct SheetPlan {
  static constexpr double kMargin = 12;
  static constexpr double kBinding = 9.6;  ///< more at the bound side of a booklet
  static constexpr double kLargestCell = 22;

  QSizeF Paper;
  SheetOptions Options;
  int PerPage = 1;     ///< 1, 2, 4 or 6
  double Header = 24;  ///< title, name, rules
  double Name = 0;     ///< above a caption
  double Caption = 7;  ///< above a board
  double Below = 16;   ///< missing numbers and code
  double Footer = 0;   ///< the number of the page
  double Text = 4;     ///< the height of fonts
  double Small = 3;

  /// The parts of page `page`, from 0, that are not margin; the first page is a right one.
  QRectF Area(int page) const;

  /// The slot `place`, from 0, in reading order.
  QRectF SlotArea(int page, int place) const;

  /// The place of a board of `side` in a slot: in the middle, with room above and below it.
  QRectF BoardIn(const QRectF& slot, double side) const;

  /// The side of a cell of a board, at most `largest`.
  double CellSide(int order, double largest = kLargestCell) const;

 private:
  QSize Slots() const;
};

}  // namespace numorra
