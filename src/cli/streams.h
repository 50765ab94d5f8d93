#pragma once

#include <iosfwd>
#include <string>

namespace numorra {

/// The streams that a process reads from and writes to.
struct Streams {
  std::istream& In;
  std::ostream& Out;
  std::ostream& Err;
  const char* Program = "numorra-square: ";  ///< the beginning of every remark
};

/// A request that cannot be met, and why.
struct Impossible {
  std::string Why;
};

}  // namespace numorra
