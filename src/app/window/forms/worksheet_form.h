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

/// The dialog (`PrintWorksheet`) that prints puzzles: the one on the board, or a set of fresh ones;
/// the player can stop the making of a set.
class WorksheetForm : public CommandForm {
  Q_OBJECT

 public:
  /// `board`: the puzzle on the board, if it has exactly one solution.
  WorksheetForm(std::optional<MadePuzzle> board, SquareWish fresh, PagePrinter& printer,
                Random& random, Dialogs& dialogs, QWidget* parent);

 private:
  void Print();
  std::vector<MadePuzzle> Puzzles();
  void ShowMaking(bool making);

  std::optional<MadePuzzle> board_;
  SquareWish fresh_;
  PagePrinter& printer_;
  Random& random_;
  QRadioButton* fromBoard_;
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
