#pragma once

#include <functional>

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "app/board/grid.h"
#include "app/ports/square_boxes.h"
#include "print/sheet_printer.h"
#include "toolkit/command_form.h"

namespace numorra {

/// The print form (`PrintSolution`): the board as text, and the commands that print it.
class PrintForm : public CommandForm {
  Q_OBJECT

 public:
  /// The caption's total is what the sum box says, or what the lines add up to once the player has
  /// chosen that; the box itself stays as it is.
  PrintForm(const Grid& grid, const SquareBoxes& boxes, SheetPrinter& printer, Dialogs& dialogs,
            QWidget* parent);

  QPlainTextEdit* const Text1;
  QLabel* const TotalDoubt;  ///< that the caption's total is not the square's
  QPushButton* const UseTotalx;
  QLabel* const WidthDoubt;  ///< that numbers run into each other
  QPushButton* const PrintGridx;
  QPushButton* const PrintSolx;
  QPushButton* const Closex;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  using Sheet = std::string (*)(const Grid&, double);
  void Print(Sheet sheet, const char* message);
  double Total() const;
  void Preview();

  const Grid& grid_;
  const SquareBoxes& boxes_;
  SheetPrinter& printer_;
  Dialogs& dialogs_;
  std::optional<double> linesTotal_;  ///< in the place of the sum box's
};

}  // namespace numorra
