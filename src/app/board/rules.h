#pragma once

namespace numorra {

/// What may stand in a board when its gaps are filled: each of 1 to n x n once, or any whole
/// numbers of 1 or more. A totals check asks for neither.
enum class Rules { Normal, Positive };

}  // namespace numorra
