#pragma once

#include <QLabel>
#include <QRadioButton>

#include "app/window/forms/puzzle_wish_box.h"
#include "puzzle/fresh_square.h"
#include "toolkit/command_form.h"

namespace numorra {

/// The dialog (`HideNumbers`) that makes a puzzle and says what came out before it is taken: clues,
/// grade, rules, code.
class HideNumbersForm : public CommandForm {
  Q_OBJECT

 public:
  /// `board`: what puzzles can be made from beside fresh squares.
  HideNumbersForm(const PuzzleSource& board, SquareWish fresh, Random& random, Dialogs& dialogs,
                  QWidget* parent);

 Q_SIGNALS:
  void Taken(const MadePuzzle& made);

 private:
  void Make();

  std::optional<Puzzle> square_;
  SquareWish fresh_;
  Random& random_;
  PuzzleWishBox* wish_;
  QRadioButton* fromBoard_;
  QLabel* told_;
  QPushButton* copy_;
  QPushButton* take_;
  std::optional<MadePuzzle> made_;
};

/// What is said of a puzzle: its clues, its grade and the rules that this takes.
QString DescriptionOf(const MadePuzzle& made);

}  // namespace numorra
