#pragma once

namespace numorra {

/// The numbers allowed in a board's gaps: each of 1 to n x n once, or any whole numbers of 1 or
/// more. A totals check requires neither.
enum class Rules { Normal, Positive };

}  // namespace numorra
