#pragma once

#include <optional>

#include "app/board/board.h"
#include "app/board/random.h"
#include "app/ports/dialogs.h"
#include "app/ports/square_boxes.h"
#include "study/famous.h"
#include "study/number_square.h"
#include "study/special.h"

/// What the Study menu does to the board. The first three need a full board, refuse any other in a
/// sentence, and give no numbers: no cell is a given afterwards. Totals are judged as before.
namespace numorra {

/// The board's numbers; nothing where there is no board or a gap in it.
std::optional<NumberSquare> SquareOn(const Board& board);

/// Another square of its family in the board's place.
void VaryBoard(Board& board, Dialogs& dialogs, Random& random);

/// largest + smallest - number in each cell. The target goes along, so that lines that were right
/// stay right; in the Variable mode the sum box does, too.
void ComplementBoard(Board& board, SquareBoxes& boxes, Dialogs& dialogs);

/// That of its eight images which is smallest in reading order.
void BringToStandardForm(Board& board, Dialogs& dialogs);

/// A square of that kind, by lot, of the order in the size box, as a new board of the normal rules.
/// False, with the reason, where there is none.
bool LayOutSpecial(const SpecialKind& kind, Board& board, SquareBoxes& boxes, Dialogs& dialogs,
                   Random& random);

void LayOutFamous(const FamousSquare& famous, Board& board, SquareBoxes& boxes);

}  // namespace numorra
