#pragma once

#include <functional>
#include <string>

#include "cli/streams.h"
#include "files/stored_square.h"

namespace numorra {

/// Calls `visit` for each square in the file, or in the standard input for "-", as soon as it is
/// read. Reports squares that cannot be read; returns true if there are none. Stops at a square
/// that is too long, and when nothing more can be written. Throws Impossible for a file that cannot
/// be read and for a text without a square.
bool ReadSquares(const std::string& file, const Streams& streams,
                 const std::function<void(const StoredSquare&)>& visit);

}  // namespace numorra
