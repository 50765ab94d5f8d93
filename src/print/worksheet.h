#pragma once

#include <string>
#include <vector>

#include <QPainter>
#include <QSizeF>
#include <QString>

#include "puzzle/making.h"

namespace numorra {

/// The layout of a worksheet.
struct WorksheetWish {
  int PerPage = 1;  ///< 1, 2, 4 or 6
  QString Title = "Magic squares";
  bool TotalGiven = true;  ///< otherwise it is left to be found, if it can be
};

/// Puzzles on pages, with their answers on the last pages. A page has a title, a line for a name
/// and the rules. A puzzle has its total, its board, a strip of the missing numbers if the square
/// is normal, and its code. An answer has its grade and code. Cells are 12 mm or more where they
/// fit.
class Worksheet {
 public:
  Worksheet(std::vector<MadePuzzle> puzzles, WorksheetWish wish);

  /// The number of pages: those of the puzzles, and as many for the answers.
  int PuzzlePages() const;
  int Pages() const { return 2 * PuzzlePages(); }

  /// Paints page `page`, from 0, on a portrait or landscape sheet of `size` millimetres, which are
  /// the painter's units.
  void PaintPage(QPainter& painter, QSizeF size, int page) const;

  /// The width of a cell of a puzzle of this order on such a sheet, in millimetres.
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

/// Whether a solver can determine the total: the normal rules give it, or a line without a gap.
bool TotalCanBeFound(const Puzzle& puzzle);

}  // namespace numorra
