#pragma once

#include <cstdint>
#include <string>

#include "app/board/board.h"

namespace numorra {

/// Everything about a board that undo brings back, in one value. The marks, the boxes, the mode, a
/// drawing and the menu's last command are not part of it.
struct Position {
  Square<std::string> Texts = {};  ///< of the value cells; an empty text is a gap
  Square<bool> Givens = {};        ///< empty if there are none
  Notes Noted = {};
  double Target = 0;
  std::int16_t Base = 0;
  Rules Asked = Rules::Normal;
  bool Checked = false;  ///< a check has been made, so keys act on the board
  bool Judged = false;   ///< the totals are coloured
  bool Typing = false;   ///< the player has typed into the current cell and not yet left it
  bool WinTold = false;  ///< the player has been congratulated on it
  int Row = 0;           ///< the current cell
  int Column = 0;

  int Order() const { return Texts.Order(); }  ///< 0 if there is no board

  bool operator==(const Position&) const = default;
};

/// The current position of the board.
Position PositionOf(const Board& board);

/// Shows the board of a position. If its totals were judged, recounts them without a message.
/// Shades stay if the order is the same; a drawing stays if the board has a total to draw.
void Restore(Board& board, const Position& position);

/// Whether the second position is a change for the player: another order, target, text or given.
bool IsChange(const Position& before, const Position& after);

/// Whether undo leads from the second position back to the first: a change, or other notes.
bool IsStep(const Position& before, const Position& after);

}  // namespace numorra
