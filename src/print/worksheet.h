#pragma once

#include <string>
#include <vector>

#include <QPainter>
#include <QSizeF>
#include <QString>

#include "puzzle/making.h"

namespace numorra {

/// How a worksheet is laid out.
struct WorksheetWish {
  int PerPage = 1;  ///< 1, 2, 4 or 6
  QString Title = "Magic squares";
  bool TotalGiven = true;  ///< else it is left to be found, where it can be
};

/// Puzzles on pages, and their answers on pages behind them. A page has a title, a line for a name
/// and the rules; a puzzle has its total, its board, for normal squares a strip of the numbers that
/// are missing, and its code; an answer has its grade and code. Cells are of 12 mm and more
/// wherever they fit.
class Worksheet {
 public:
  Worksheet(std::vector<MadePuzzle> puzzles, WorksheetWish wish);

  /// Of puzzles, and of answers behind them as many.
  int PuzzlePages() const;
  int Pages() const { return 2 * PuzzlePages(); }

  /// Paints page `page`, from 0, on a sheet of `size` millimetres, the painter's units; taller than
  /// wide or wider than tall.
  void PaintPage(QPainter& painter, QSizeF size, int page) const;

  /// How wide a cell of a puzzle of this order is then, in millimetres.
  double CellSide(QSizeF size, int order) const;

 private:
  struct Slot {
    QRectF Area;
    int Number;
  };
  QSize Slots(QSizeF size) const;
  QRectF SlotArea(QSizeF size, int place) const;
  void PaintPuzzle(QPainter& painter, const Slot& slot, double side) const;
  void PaintAnswer(QPainter& painter, const Slot& slot, double side) const;
  void PaintCaptioned(QPainter& painter, const Slot& slot, double side, const Puzzle& shown,
                      const QString& above, const QString& below) const;

  std::vector<MadePuzzle> puzzles_;
  WorksheetWish wish_;
};

/// Whether a solver can find out what the total is: it follows from the normal rules, or stands in
/// a line without a gap.
bool TotalCanBeFound(const Puzzle& puzzle);

}  // namespace numorra
