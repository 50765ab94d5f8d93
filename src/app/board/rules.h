#pragma once

#include <string>

namespace numorra {

/// The numbers allowed in a board's gaps: each of 1 to n x n once, or any whole numbers of 1 or
/// more. A totals check requires neither.
enum class Rules { Normal, Positive };

/// The rules for a board of an order in words: "the numbers 1 to 16, each once", or "any whole
/// numbers".
inline std::string InWords(Rules rules, int order) {
  return rules == Rules::Positive
             ? "any whole numbers"
             : "the numbers 1 to " + std::to_string(order * order) + ", each once";
}

}  // namespace numorra
