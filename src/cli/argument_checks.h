#pragma once

#include <string>

#include "cli/arguments.h"

namespace numorra {

/// What was on the command line besides what the request holds.
struct OptionsGiven {
  bool Wishes = false;  ///< options that say what is to be made
  bool Count = false;
  bool Grade = false;
};

/// Why the options of a command line do not go together, or miss one; empty if they do.
std::string WhyNotTogether(const SquareRequest& request, const OptionsGiven& given);

}  // namespace numorra
