#pragma once

#include <string>

#include "words/say.h"

namespace numorra {

/// The numbers allowed in a board's gaps: each of 1 to n x n once, or any whole numbers of 1 or
/// more. A totals check requires neither.
enum class Rules { Normal, Positive };

/// The rules for a board of an order in words: "the numbers 1 to 16, each once", or "any whole
/// numbers".
inline std::string InWords(Rules rules, int order) {
  return rules == Rules::Positive ? Say("any whole numbers")
                                  : Say("the numbers 1 to %1, each once", order * order);
}

}  // namespace numorra
