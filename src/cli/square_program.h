#pragma once

#include <string>
#include <vector>

#include "cli/streams.h"

namespace numorra {

/// The command-line companion without its process: `words` are the words after the program's name.
/// Returns the exit status: 0 done, 1 failed while reading, building or writing, 2 bad arguments, 3
/// gaps that nothing fills, 4 that was not settled in time, 5 memory that was refused.
int RunSquareProgram(const std::vector<std::string>& words, const Streams& streams);

}  // namespace numorra
