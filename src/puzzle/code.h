#pragma once

#include <optional>
#include <string>
#include <variant>

#include "files/stored_square.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// The largest order that a code holds.
inline constexpr int kMostCodedOrder = 10;

/// A puzzle as one line of letters and digits: "NP", the version 1, the puzzle, a check character.
///
/// The puzzle is one large number in mixed radix: its order, rules and target, and for each cell
/// whether it is a gap, and a number as its place among those still possible. It is written in the
/// 32 digits and letters without I, L, O and U (Crockford's alphabet). The check character makes a
/// polynomial over the field of 32 elements vanish: any one wrong character shows, and any two that
/// have changed places within 31. Codes of version 1 are read for ever.
///
/// Throws nothing; the order is at most kMostCodedOrder.
std::string CodeOf(const Puzzle& puzzle);

/// Whether a text is meant to be a code: its first letters are NP, capitals or not.
bool LooksLikeCode(const std::string& text);

/// The puzzle that a code holds, capitals or not; I and L are read as 1 and O as 0. Or what is
/// wrong with the code.
std::variant<Puzzle, Unreadable> PuzzleOfCode(const std::string& code);

/// A square in any of the formats or as the code of a puzzle, whose numbers are then givens.
/// `firstLine`: as ReadSquare has it.
std::variant<StoredSquare, Unreadable> ReadSquareOrCode(const std::string& text,
                                                        std::size_t firstLine = 1);

}  // namespace numorra
