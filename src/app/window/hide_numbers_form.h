#pragma once

#include <QDialog>
#include <QLabel>
#include <QRadioButton>

#include "app/window/puzzle_wish_box.h"
#include "puzzle/fresh_square.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// The dialog (`HideNumbers`) that makes a puzzle and says what came out before it is taken: clues,
/// grade, rules, code.
class HideNumbersForm : public QDialog {
  Q_OBJECT

 public:
  /// `square`: what stands on the board; nothing where no puzzle can be made of it, `whyNot`.
  HideNumbersForm(std::optional<Puzzle> square, const QString& whyNot, SquareWish fresh,
                  Random& random, Dialogs& dialogs, QWidget* parent);

  void done(int result) override;

 Q_SIGNALS:
  void Taken(const MadePuzzle& made);

 private:
  void Make();

  std::optional<Puzzle> square_;
  SquareWish fresh_;
  Random& random_;
  CommandRunner runner_;
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
