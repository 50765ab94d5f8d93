#pragma once

#include <iosfwd>

#include "files/formats.h"
#include "puzzle/making.h"

namespace numorra {

/// Writes a puzzle in the format, with its grade, number of clues and code; JSON has its solution
/// too. `solved`: the puzzle with its only solution, or null; then there is no grade and no
/// solution, which are null in JSON.
void WritePuzzle(const Puzzle& clues, const MadePuzzle* solved, SquareFormat format,
                 std::ostream& out);

}  // namespace numorra
