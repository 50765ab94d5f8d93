#pragma once

#include <string>
#include <variant>

#include "files/stored_square.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// The largest order that a code holds.
inline constexpr int kMostCodedOrder = 20;

/// A puzzle as one line of letters and digits (src/puzzle/code_text.h).
///
/// The puzzle is one large number in mixed radix: its kind, order, rules and target, and for each
/// cell whether it is a gap, and a number as its place among those still possible. Every puzzle has
/// one code of each version, so a number that is not written back the same is refused. Codes of
/// version 1, for orders up to 10, are read for ever.
///
/// Empty for a puzzle that has no code: it is larger than kMostCodedOrder, of a kind other than
/// magic, has no clue, or has a line whose clues cannot add up to the target.
std::string CodeOf(const Puzzle& puzzle);

/// Whether a text is meant to be a code: its first letters are NP, capitals or not.
bool LooksLikeCode(const std::string& text);

/// The puzzle that a code holds, or what is wrong with the code. Reads what ReadCodeText takes.
std::variant<Puzzle, Unreadable> PuzzleOfCode(const std::string& code);

/// A square in any of the formats or as the code of a puzzle, whose numbers are then givens.
/// `firstLine`: as ReadSquare has it.
std::variant<StoredSquare, Unreadable> ReadSquareOrCode(const std::string& text,
                                                        std::size_t firstLine = 1);

}  // namespace numorra
