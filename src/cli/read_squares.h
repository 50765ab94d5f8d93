#pragma once

#include <functional>
#include <string>

#include "cli/streams.h"
#include "files/stored_square.h"

namespace numorra {

/// Calls visit for each square in the file of this name, or in the standard input for "-", as soon
/// as it is read, and tells of those that cannot be read; true when there is none. Ends at one that
/// is too long, and when nothing more can be written. Throws Impossible for a file that cannot be
/// read and for a text without a square.
bool ReadSquares(const std::string& file, const Streams& streams,
                 const std::function<void(const StoredSquare&)>& visit);

}  // namespace numorra
