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
  /// The caption's total is that of the sum box, or the total of the lines once the player has
  /// chosen it; the box itself does not change.
  PrintForm(const Grid& grid, const SquareBoxes& boxes, SheetPrinter& printer, Dialogs& dialogs,
            QWidget* parent);

  QPlainTextEdit* const Text1;
  QLabel* const TotalDoubt;  ///< warns that the caption's total is not the square's
  QPushButton* const UseTotalx;
  QLabel* const WidthDoubt;  ///< warns that numbers overlap
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
  std::optional<double> linesTotal_;  ///< replaces the sum box's
};

}  // namespace numorra
