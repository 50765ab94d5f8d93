#pragma once

#include <string>
#include <vector>

#include "cli/arguments.h"

namespace numorra {

/// Whether the first word is `list` or `count`.
bool ListsOrCounts(const std::vector<std::string>& words);

/// Reads the words of such a command line.
Arguments ParseCountArguments(const std::vector<std::string>& words);

}  // namespace numorra
