#pragma once

#include <optional>

#include "app/board/command_context.h"
#include "generate/construction.h"
#include "study/famous.h"
#include "study/kept_relatives.h"
#include "study/number_square.h"
#include "study/special.h"

/// What the Study menu does to the board. The commands for related squares need a full board and
/// refuse any other in one sentence. They leave no givens. Totals are judged as before.
namespace numorra {

/// The board's numbers; nothing without a board or with a gap.
std::optional<NumberSquare> SquareOn(const Board& board);

/// Replaces the board by another square of its family.
void VaryBoard(const CommandContext& context);

/// Replaces each number by largest + smallest - number. The target changes in the same way, so that
/// lines that were right stay right; so does the sum box in the Variable mode.
void ComplementBoard(const CommandContext& context);

/// Shows the image, of all eight, that is smallest in reading order.
void BringToStandardForm(const CommandContext& context);

/// Replaces the board by a random relative that keeps its kind, or says that there is none. Where
/// all numbers change, a target that was right changes with them, and the rules become those of any
/// whole numbers.
void ShowRelative(const Relative& relative, const CommandContext& context);

/// A random square of that kind, of the order in the size box, as a new board by the normal rules.
/// Returns false, with the reason, if there is none.
bool LayOutSpecial(const SpecialKind& kind, const CommandContext& context);

/// The same with a square that the construction makes.
bool LayOutConstruction(const Construction& construction, const CommandContext& context);

void LayOutFamous(const FamousSquare& famous, const CommandContext& context);

}  // namespace numorra
