#include "print/sheet_doubts.h"

#include "app/board/board.h"
#include "app/board/numbers.h"
#include "print/sheet.h"
#include "words/say.h"

namespace numorra {

SheetDoubts DoubtsOf(const Grid& grid, double total) {
  const int order = grid.Rows() - 2;
  SheetDoubts doubts;
  CellTable cells;
  bool wide = false, gaps = false;
  ForEachCell(order, [&](int r, int c) {
    gaps = gaps || grid.At(r, c).IsGap();
    cells(r, c) = Val(grid.Text(r, c));
    wide = wide || grid.Text(r, c).size() > kSheetPlaces;
  });
  ComputeTotals(cells, order);
  bool agree = cells(0, 0) == cells(0, order + 1);
  for (int line = 1; line <= order; ++line)
    agree = agree && cells(line, 0) == cells(0, 0) && cells(0, line) == cells(0, 0);
  if (gaps) {
    // Lines with gaps do not determine the total.
  } else if (!agree) {
    doubts.Total = Say("The lines of this square do not all add up to %1.", Written(total));
  } else if (cells(0, 0) != AsShown(total)) {
    doubts.TheLines = cells(0, 0);
    doubts.Total = Say("The sum box says %1, but the lines of this square add up to %2.",
                       Written(total), Written(cells(0, 0)));
  }
  if (wide) {
    doubts.Width = Say("Numbers with more than %1 characters overlap their neighbors on the sheet.",
                       kSheetPlaces);
  }
  return doubts;
}

}  // namespace numorra
