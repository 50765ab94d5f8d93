#pragma once

#include <string>

#include "app/board/board.h"
#include "app/ports/dialogs.h"

namespace numorra {

/// The player's keys on the current cell, and the rules for moving it: it never leaves the value
/// block, and a cell that was typed into is checked when it is left.
///
/// Keys do nothing before the first totals check and while one runs.
class CellEntry {
 public:
  /// Sets the grid's hooks.
  CellEntry(Board& board, Dialogs& dialogs);

  /// Digits build a number of at most kMostCellDigits digits; Backspace (code 8) removes the last
  /// one and counts as typing; neither checks. Signs, points and letters cannot be typed. Returns
  /// why a character was not taken, or nothing; if a given was in the way, the player was told.
  std::string TypeCharacter(char32_t character);

  /// Checks, then moves to the next row; the check leaves the last column current.
  void PressEnter();

  /// Checks what was typed into the current cell, which stays current.
  void Finish() { LeaveCell(); }

  /// The keypad's plus and minus: one more or less in the Variable mode, then a check. Minus gives
  /// 1 where the result would be exactly 0; a 0 becomes -1. A step to more digits than a cell takes
  /// is not made.
  void KeypadPlus();
  void KeypadMinus();

 private:
  void LeaveCell();
  void ChangeCell();
  void Step(double amount);

  Board& board_;
  Dialogs& dialogs_;
  bool leaving_ = false;
};

}  // namespace numorra
