#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/board/rules.h"

namespace numorra {

/// A square as files and the clipboard hold it.
struct StoredSquare {
  int Order = 0;
  std::vector<std::optional<double>> Cells = {};  ///< in reading order; nothing is a gap
  std::vector<bool> Givens = {};                  ///< by cell; empty when there are none
  std::optional<double> Total = {};               ///< where it is stored
  Rules Asked = Rules::Positive;

  bool operator==(const StoredSquare&) const = default;
};

/// Why something is no square: one sentence for the player, with the line where there is one.
struct Unreadable {
  std::string Why;
};

/// One JSON object on one line:
/// {"format": "numorra-square", "version": 1, "order": 3, "total": 15, "rules": "normal",
///  "rows": [[8, null, 6], ...], "givens": [[true, false, false], ...]}
/// with null for a gap, and "givens" only where there are any.
std::string JsonOf(const StoredSquare& square);

/// Its rows alone: [[8, null, 6], ...].
std::string JsonRowsOf(const StoredSquare& square);

/// The numbers alone, for spreadsheets: commas between them, a line a row, nothing for a gap.
std::string CsvOf(const StoredSquare& square);

/// The names that JSON has for the format and the rules.
inline constexpr const char* kJsonFormat = "numorra-square";
inline constexpr int kJsonVersion = 1;
const char* NameOf(Rules rules);

}  // namespace numorra
