#pragma once

#include <optional>

#include "app/board/command_context.h"
#include "study/famous.h"
#include "study/number_square.h"
#include "study/special.h"

/// What the Study menu does to the board. The first three need a full board, refuse any other in a
/// sentence, and give no numbers: no cell is a given afterwards. Totals are judged as before.
namespace numorra {

/// The board's numbers; nothing where there is no board or a gap in it.
std::optional<NumberSquare> SquareOn(const Board& board);

/// Another square of its family in the board's place.
void VaryBoard(const CommandContext& context);

/// largest + smallest - number in each cell. The target goes along, so that lines that were right
/// stay right; in the Variable mode the sum box does, too.
void ComplementBoard(const CommandContext& context);

/// That of its eight images which is smallest in reading order.
void BringToStandardForm(const CommandContext& context);

/// A square of that kind, by lot, of the order in the size box, as a new board of the normal rules.
/// False, with the reason, where there is none.
bool LayOutSpecial(const SpecialKind& kind, const CommandContext& context);

void LayOutFamous(const FamousSquare& famous, const CommandContext& context);

}  // namespace numorra
