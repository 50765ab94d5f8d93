#pragma once

#include <string>

#include "app/ports/yielding.h"
#include "files/json_line.h"
#include "puzzle/making.h"

namespace numorra {

/// The puzzle as a JSON object: its square with the clues as givens, and
/// "solution": [[8, 1, 6], ...], "grade": "hard", "clues": 5, "code": "NP2..."
/// with null for a solution and grade that are not known, and for a puzzle without a code.
JsonLine JsonOfPuzzle(const Puzzle& clues, const MadePuzzle* solved);

/// The way to solve it, as an array with an object for each number, in order:
/// {"cell": [1, 2], "number": 13, "grade": "easy", "because": [
///   {"rule": "last gap", "line": "row 1", "cell": [1, 2], "says": "row 1 needs ..."}, ...]}
/// Rows and columns count from 1. "line" and "cell" are missing where a reason is about none. Only
/// what a reason "says" is in the reader's language.
std::string JsonOfSteps(const MadePuzzle& puzzle, Yielding& yielding);

}  // namespace numorra
