#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "app/window/forms/puzzle_wish_box.h"
#include "print/page_printer.h"
#include "print/worksheet.h"
#include "puzzle/fresh_puzzle.h"
#include "toolkit/command_form.h"

namespace numorra {

/// Puzzles that can be printed as they are, or none, and what they are called.
struct PuzzlesAtHand {
  QString Caption;
  std::vector<MadePuzzle> Puzzles;
};

/// The dialog (`PrintWorksheet`) that prints puzzles: those at hand, or a set of fresh ones; the
/// player can stop the making of a set.
class WorksheetForm : public CommandForm {
  Q_OBJECT

 public:
  WorksheetForm(PuzzlesAtHand atHand, SquareWish fresh, PagePrinter& printer, Random& random,
                Dialogs& dialogs, QWidget* parent);

 private:
  void Print();
  std::vector<MadePuzzle> Puzzles();
  void ShowMaking(bool making);

  std::vector<MadePuzzle> atHand_;
  SquareWish fresh_;
  PagePrinter& printer_;
  Random& random_;
  QRadioButton* printsAtHand_;
  QSpinBox* count_;
  PuzzleWishBox* wish_;
  QComboBox* perPage_;
  QComboBox* orientation_;
  QLineEdit* title_;
  QCheckBox* total_;
  QLabel* told_;
  QPushButton* print_;
  QPushButton* stop_;
};

}  // namespace numorra
