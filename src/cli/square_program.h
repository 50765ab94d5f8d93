#pragma once

#include <string>
#include <vector>

#include "cli/streams.h"

namespace numorra {

/// The command-line companion without its process: `words` are the words after the program's name.
/// Returns the exit status: 0 success, 1 failed to read, build or write, 2 bad arguments, 3 nothing
/// fills the gaps, 4 not settled in time, 5 not enough memory.
int RunSquareProgram(const std::vector<std::string>& words, const Streams& streams);

}  // namespace numorra
