#pragma once

#include <cstdint>
#include <string>

#include "app/board/board.h"

namespace numorra {

/// All of a board that a player would expect back, in one value: what undo keeps.
/// The marks, the boxes, the mode, a drawing and the menu's memory of one command are not in it.
struct Position {
  Square<std::string> Texts = {};  ///< of the value cells; an empty one is a gap
  Square<bool> Givens = {};        ///< empty when there are none
  double Target = 0;
  std::int16_t Base = 0;
  Rules Asked = Rules::Normal;
  bool Checked = false;  ///< a check has been made, so that keys reach the board
  bool Judged = false;   ///< the totals are coloured
  bool Typing = false;   ///< the current cell was typed into and not yet left
  bool WinTold = false;  ///< the player has been congratulated on it
  int Row = 0;           ///< the current cell
  int Column = 0;

  int Order() const { return Texts.Order(); }  ///< 0 where there is no board

  bool operator==(const Position&) const = default;
};

/// The board as it stands.
Position PositionOf(const Board& board);

/// Shows the board as it stood, recounted without a word where its totals were judged. Shades stay
/// while the order does; a drawing stays where the board has a total to draw.
void Restore(Board& board, const Position& position);

/// Whether a player would call the second a change of the first: another order, target, text or
/// given.
bool IsChange(const Position& before, const Position& after);

}  // namespace numorra
