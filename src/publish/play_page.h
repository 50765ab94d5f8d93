#pragma once

#include <string>
#include <vector>

#include "app/ports/yielding.h"
#include "puzzle/making.h"

namespace numorra {

/// One self-contained HTML page on which the puzzles of a set are solved. It needs no server and
/// loads nothing. Without scripts, and when it is printed, it is a sheet: each puzzle as a table
/// with its total, grade and code.
///
/// `puzzles`: each is one JSON object as the companion writes it, with "total", "rules" and "rows";
/// "grade", "code", "solution" and "steps" may be missing or null. Without a solution the page does
/// not check, and without steps it gives no hints. `title`: any text, in UTF-8.
///
/// Throws Unreadable, with the number of the puzzle, if an object is not a puzzle.
std::string PlayPage(const std::string& title, const std::vector<std::string>& puzzles);

/// The page of puzzles with their solutions and steps. Yields between steps; an exception thrown by
/// a yield ends it.
std::string PlayPage(const std::string& title, const std::vector<MadePuzzle>& puzzles,
                     Yielding& yielding);

}  // namespace numorra
