#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "app/window/forms/fresh_set_box.h"
#include "app/window/forms/sheet_options_box.h"
#include "print/page_printer.h"
#include "print/worksheet.h"
#include "toolkit/command_form.h"
#include "toolkit/file_chooser.h"
#include "toolkit/told_label.h"

namespace numorra {

/// Puzzles that can be printed as they are, or none, and what they are called.
struct PuzzlesAtHand {
  QString Caption;
  std::vector<MadePuzzle> Puzzles;
};

/// What was last chosen for worksheets.
struct SheetChoice {
  PuzzleSetWish Set;
  WorksheetWish Layout = {.PerPage = 6};
  bool Landscape = false;
};

/// The dialog (`PrintWorksheet`) that prints puzzles, or saves them as a page to play on: those at
/// hand, or a set of fresh ones. It says what it will print, and afterwards what could not be made;
/// the player can stop the making of a set. A set that was printed can be saved as a page, too, and
/// the other way round: only after that, or for another choice, new puzzles are made.
class WorksheetForm : public CommandForm {
  Q_OBJECT

 public:
  /// Where its sheets and pages go.
  struct Ports {
    PagePrinter& Printer;
    FileChooser& Files;
  };

  /// `choice`: what the dialog starts with; it keeps what the player chooses.
  WorksheetForm(PuzzlesAtHand atHand, SheetChoice& choice, const Ports& ports, Random& random,
                Dialogs& dialogs, QWidget* parent);

 private:
  void TakeChoice();
  void Print();
  void SavePage();
  std::vector<MadePuzzle> PuzzlesFor(const QPushButton* button);
  std::vector<MadePuzzle> MakeSet();
  void ShowMaking(bool making);

  std::vector<MadePuzzle> atHand_;
  std::vector<MadePuzzle> made_;          ///< the last set
  QString shortfall_;                     ///< what it did not reach
  const QPushButton* madeFor_ = nullptr;  ///< the button that took it; null if both did
  SheetChoice& choice_;
  Ports ports_;
  Random& random_;
  QRadioButton* printsAtHand_;
  FreshSetBox* set_;
  QComboBox* perPage_;
  QComboBox* orientation_;
  QLineEdit* title_;
  QCheckBox* total_;
  SheetOptionsBox* options_;
  ToldLabel* told_;
  QPushButton* print_;
  QPushButton* page_;
  QPushButton* stop_;
};

}  // namespace numorra
