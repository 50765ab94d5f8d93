#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace numorra {

/// The command-line companion without its process: `words` are the words after the program's name.
/// Returns the exit status: 0 done, 1 failed while building or writing, 2 bad arguments.
int RunSquareProgram(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);

}  // namespace numorra
