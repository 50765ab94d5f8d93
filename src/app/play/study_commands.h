#pragma once

#include <optional>

#include "app/board/board.h"
#include "app/board/random.h"
#include "app/ports/dialogs.h"
#include "app/ports/square_boxes.h"
#include "study/famous.h"
#include "study/number_square.h"
#include "study/special.h"

/// What the Study menu does to the board. The first three commands need a full board and refuse any
/// other in one sentence. They leave no givens. Totals are judged as before.
namespace numorra {

/// The board's numbers; nothing without a board or with a gap.
std::optional<NumberSquare> SquareOn(const Board& board);

/// Replaces the board by another square of its family.
void VaryBoard(Board& board, Dialogs& dialogs, Random& random);

/// Replaces each number by largest + smallest - number. The target changes in the same way, so that
/// lines that were right stay right; so does the sum box in the Variable mode.
void ComplementBoard(Board& board, SquareBoxes& boxes, Dialogs& dialogs);

/// Shows the image, of all eight, that is smallest in reading order.
void BringToStandardForm(Board& board, Dialogs& dialogs);

/// A random square of that kind, of the order in the size box, as a new board by the normal rules.
/// Returns false, with the reason, if there is none.
bool LayOutSpecial(const SpecialKind& kind, Board& board, SquareBoxes& boxes, Dialogs& dialogs,
                   Random& random);

void LayOutFamous(const FamousSquare& famous, Board& board, SquareBoxes& boxes);

}  // namespace numorra
