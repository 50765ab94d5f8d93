#pragma once

#include <string>

#include "app/board/board.h"
#include "app/ports/square_boxes.h"
#include "generate/variable_plan.h"
#include "listbox/list_boy.h"

namespace numorra {

/// The entry that wants no particular corner value.
inline constexpr const char* kAnyCorner = "any";

/// What a player is told whose corner value the square of this plan does not have.
std::string WhyNotTheCorner(double corner, const VariablePlan& plan);

/// Fills `choice` with "any" and, for sizes above 4, the corner values that fit the size and sum in
/// the boxes: from 1 to 2 x base - 1, in round steps (1, 2, 5, 10, 20, ...) where there are more
/// than about a hundred, the base itself among them. The board's BaseValue becomes that base; a sum
/// too small for a base of 2 is rewritten. `candidates` is the work list. A size below 1 offers
/// "any" alone.
void OfferCorners(Board& board, SquareBoxes& boxes, ListBoy& candidates, ListBox& choice);

}  // namespace numorra
