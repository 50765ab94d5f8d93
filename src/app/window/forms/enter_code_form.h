#pragma once

#include <QPlainTextEdit>
#include <QPushButton>

#include "puzzle/code_list.h"
#include "puzzle/making.h"
#include "toolkit/command_form.h"
#include "toolkit/told_label.h"

namespace numorra {

/// The dialog (`EnterCodeForm`) that takes puzzle codes, typed or pasted, and says while the player
/// writes which lines are wrong. One puzzle is laid out, or all of them become a worksheet.
class EnterCodeForm : public CommandForm {
  Q_OBJECT

 public:
  EnterCodeForm(Random& random, Dialogs& dialogs, QWidget* parent);

 Q_SIGNALS:
  /// The first puzzle is to be laid out.
  void Taken(const Puzzle& puzzle);

  /// All puzzles, each with its only solution, are to be printed.
  void SetTaken(const std::vector<MadePuzzle>& puzzles);

 private:
  void Read();
  void Print();

  Random& random_;
  QPlainTextEdit* codes_;
  ToldLabel* told_;
  QPushButton* print_;
  QPushButton* take_;
  CodeList list_;
};

}  // namespace numorra
