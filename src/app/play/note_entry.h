#pragma once

#include <optional>
#include <string>

#include "app/board/board.h"
#include "app/play/hints.h"
#include "app/play/undo_history.h"
#include "app/ports/dialogs.h"

namespace numorra {

/// Takes notes: numbers that the player considers for a gap.
///
/// The digits of a number toggle it in the notes of the current gap while they are typed: 1 toggles
/// 1, and a 2 after it takes that back and toggles 12. A digit that would make the number larger
/// than the board's largest begins another number, and so does one after EndNumber or in another
/// cell. All digits of a number are one step of undo. By the normal rules, numbers on the board are
/// not noted.
class NoteEntry {
 public:
  NoteEntry(Board& board, Dialogs& dialogs, UndoHistory& history)
      : board_(board), dialogs_(dialogs), history_(history) {}

  bool TakingNotes() const { return taking_; }
  void TakeNotes(bool taking);

  /// A digit, or Backspace (code 8): takes back the last digit of the number, or empties the notes
  /// of the gap if no number is being typed. Other characters are ignored; a cell with a number is
  /// refused.
  void TypeCharacter(char32_t character);

  /// Ends the number that is being typed; false if there is none.
  bool EndNumber();

 private:
  bool RefusesNotes(Place place);
  void Begin(int cell);
  void Toggle(int number);

  Board& board_;
  Dialogs& dialogs_;
  UndoHistory& history_;
  bool taking_ = false;
  std::optional<int> cell_;  ///< where a number is being typed
  int number_ = 0;           ///< as far as it is typed
  NoteSet before_;           ///< the notes of that cell without it
};

/// Writes into every gap the numbers that its lines leave for it (FittingNumbers); returns why not
/// if a gap can hold none, otherwise an empty remark.
Remark FillNotes(Board& board);

/// Removes all notes.
void ClearNotes(Board& board);

}  // namespace numorra
