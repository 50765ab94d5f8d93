#pragma once

#include <QRadioButton>

#include "app/window/forms/puzzle_wish_box.h"
#include "puzzle/fresh_puzzle.h"
#include "toolkit/command_form.h"
#include "toolkit/told_label.h"

namespace numorra {

/// The dialog (`HideNumbers`) that makes a puzzle and shows its clues, grade, rules and code before
/// the player accepts it.
class HideNumbersForm : public CommandForm {
  Q_OBJECT

 public:
  /// `board`: the square on the board that puzzles can be made from, besides fresh ones.
  HideNumbersForm(const PuzzleSource& board, SquareWish fresh, Random& random, Dialogs& dialogs,
                  QWidget* parent);

 Q_SIGNALS:
  void Taken(const MadePuzzle& made);

 private:
  Q_SLOT void Make();

  std::optional<Puzzle> square_;
  SquareWish fresh_;
  Random& random_;
  PuzzleWishBox* wish_;
  QRadioButton* fromBoard_;
  ToldLabel* told_;
  QPushButton* copy_;
  QPushButton* take_;
  std::optional<MadePuzzle> made_;
};

/// Describes a puzzle: its clues, its grade and the rules that the grade needs.
QString DescriptionOf(const MadePuzzle& made);

}  // namespace numorra
