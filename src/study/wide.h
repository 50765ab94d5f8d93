#pragma once

#include <string>

namespace numorra {

/// A whole number of 128 bits: up to 1.7 x 10^38 in size.
__extension__ using Wide = __int128;

/// Its decimal, with a minus sign if it is negative.
std::string DecimalOf(Wide number);

}  // namespace numorra
