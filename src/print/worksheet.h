#pragma once

#include <array>
#include <string>
#include <vector>

#include <QPainter>
#include <QSizeF>
#include <QString>

#include "print/sheet_options.h"
#include "print/sheet_plan.h"
#include "puzzle/making.h"
#include "toolkit/tr.h"

namespace numorra {

/// The layout of a worksheet.
struct WorksheetWish {
  int PerPage = 1;  ///< 1, 2, 4 or 6
  QString Title = Tr("Magic squares");
  bool TotalGiven = true;  ///< otherwise it is left to be found, if it can be
  SheetOptions Options = {};
};

/// Puzzles on pages, with their answers on the last pages. A page has a title, a line for a name
/// and the rules. A puzzle has its total, its board, a strip of the missing numbers if the square
/// is normal, and its code. An answer has its grade and code. Cells are 12 mm or more where they
/// fit.
///
/// In large print, texts that are too wide for a line take several, and a page has as many puzzles,
/// up to those wished for, as have room on both A4 and Letter paper.
class Worksheet {
 public:
  Worksheet(std::vector<MadePuzzle> puzzles, WorksheetWish wish, bool landscape = false);

  /// The number of pages: those of the puzzles, and those of the answers.
  int PuzzlePages() const { return PagesFor(false); }
  int Pages() const { return PagesFor(false) + PagesFor(true); }

  /// The title of the pages of puzzles, or of those of answers.
  QString TitleOf(bool answers) const;

  /// Why a puzzle does not fit on a page in large print, in one sentence; empty if all do.
  std::string WhyTooLarge() const;

  /// Paints page `page`, from 0, on a portrait or landscape sheet of `size` millimetres, which are
  /// the painter's units. On a sheet that is too small for large print, writes that it is.
  void PaintPage(QPainter& painter, QSizeF size, int page) const;

 private:
  /// A page as it is numbered: from 0, of so many.
  struct Leaf {
    int Number;
    int Count;
    bool Answers;
  };
  struct Slot {
    QRectF Area;
    int Number;
  };
  static std::size_t Of(bool answers) { return answers ? 1 : 0; }
  int PagesFor(bool answers) const;
  const SheetPlan& PlanOn(QSizeF size, bool answers) const;
  SheetPlan MakePlan(QSizeF size, bool answers, int perPage) const;
  void MakeLarge(SheetPlan& plan, bool answers) const;
  std::string WhyTooLargeOn(const SheetPlan& plan) const;
  Leaf LeafOf(int page) const;
  void PaintHeader(QPainter& painter, const SheetPlan& plan, const Leaf& leaf) const;
  static void PaintFooter(QPainter& painter, const SheetPlan& plan, const Leaf& leaf);
  void PaintPuzzle(QPainter& painter, const SheetPlan& plan, const Slot& slot, bool answer) const;

  QString CaptionOf(int number, bool answer) const;
  const MadePuzzle& Made(int number) const { return puzzles_[static_cast<std::size_t>(number)]; }

  std::vector<MadePuzzle> puzzles_;
  WorksheetWish wish_;
  QSizeF paper_;                            ///< the common part of A4 and Letter
  std::array<int, 2> perPage_;              ///< of puzzles and answers
  mutable std::array<SheetPlan, 2> plans_;  ///< of both, on the paper painted last
};

/// Whether a solver can determine the total: the normal rules give it, or a line without a gap.
bool TotalCanBeFound(const Puzzle& puzzle);

}  // namespace numorra
