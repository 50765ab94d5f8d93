#pragma once

#include <string>

#include "app/board/board.h"
#include "app/ports/square_boxes.h"
#include "generate/variable_plan.h"
#include "listbox/list_boy.h"
#include "words/say.h"

namespace numorra {

/// The entry for no particular corner value, to be said where it is shown.
// Translators: the entry of a list of numbers that leaves the number open
inline constexpr const char* kAnyCorner = Mark("any");

/// The message for a corner value that no square of this plan has.
std::string WhyNotTheCorner(double corner, const VariablePlan& plan);

/// Fills `choice` with "any" and, for sizes above 4, the corner values that fit the size and sum in
/// the boxes: from 1 to 2 x base - 1, in round steps (1, 2, 5, 10, 20, ...) if there are more than
/// about a hundred, and the base itself. Sets the board's BaseValue to that base; rewrites a sum
/// that is too small for a base of 2. `candidates` is the work list. For a size below 1, offers
/// "any" only.
void OfferCorners(Board& board, SquareBoxes& boxes, ListBoy& candidates, ListBox& choice);

}  // namespace numorra
