#pragma once

#include <iosfwd>
#include <string>

namespace numorra {

/// What a process is given to read from and to write to.
struct Streams {
  std::istream& In;
  std::ostream& Out;
  std::ostream& Err;
};

/// How remarks begin.
inline constexpr const char* kProgramName = "numorra-square: ";

/// A request that cannot be met, and why.
struct Impossible {
  std::string Why;
};

}  // namespace numorra
