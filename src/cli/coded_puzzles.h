#pragma once

#include "cli/arguments.h"
#include "cli/streams.h"

namespace numorra {

/// Writes the puzzles of the codes in the file of the request, line by line as PuzzlesOfCodes reads
/// them. Reports lines that are wrong, and puzzles for which no single solution was found; returns
/// true if all lines were read. Throws Impossible for a file that cannot be read, one without a
/// code, and a line of more than kMostTextBytes.
bool WriteCodedPuzzles(const SquareRequest& request, const Streams& streams);

}  // namespace numorra
