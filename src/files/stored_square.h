#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/board/rules.h"

namespace numorra {

/// A square as files and the clipboard hold it.
struct StoredSquare {
  int Order = 0;
  std::vector<std::optional<double>> Cells = {};  ///< in reading order; no value is a gap
  std::vector<bool> Givens = {};                  ///< by cell; empty when there are none
  std::optional<double> Total = {};               ///< if it is stored
  Rules Asked = Rules::Positive;

  bool operator==(const StoredSquare&) const = default;
};

/// Why something is not a square: one sentence for the player, with the line if there is one.
struct Unreadable {
  std::string Why;
};

/// "normal", "positive".
const char* NameOf(Rules rules);

}  // namespace numorra
