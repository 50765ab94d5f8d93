#pragma once

#include <functional>

#include "cli/arguments.h"
#include "cli/streams.h"
#include "puzzle/making.h"

namespace numorra {

/// Takes a puzzle, and its solution or null if none is known.
using PuzzleVisitor = std::function<void(const Puzzle& clues, const MadePuzzle* solved)>;

/// Makes the requested puzzles, each from a square of its own, and passes them on while something
/// can be written. The same seed gives the same puzzles. At the end, tells what was not reached,
/// and then returns false. Throws Impossible if no puzzle was made.
bool MakePuzzles(const SquareRequest& request, const Streams& streams, const PuzzleVisitor& visit);

/// Passes on the puzzles of the codes in the file of the request, line by line as PuzzlesOfCodes
/// reads them. Reports lines that are wrong, and puzzles for which no single solution was found;
/// returns true if all lines were read. Throws Impossible for a file that cannot be read, one
/// without a code, and a line of more than kMostTextBytes.
bool ReadCodedPuzzles(const SquareRequest& request, const Streams& streams,
                      const PuzzleVisitor& visit);

/// Makes or reads puzzles, as the request says.
bool VisitPuzzles(const SquareRequest& request, const Streams& streams, const PuzzleVisitor& visit);

}  // namespace numorra
