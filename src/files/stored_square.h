#pragma once

#include <optional>
#include <string>

#include "app/board/notes.h"
#include "app/board/rules.h"
#include "app/board/square.h"

namespace numorra {

/// Numbers, and nothing for a gap.
using StoredCells = Square<std::optional<double>>;

/// A square as files and the clipboard hold it.
struct StoredSquare {
  StoredCells Cells = {};
  Square<bool> Givens = {};          ///< empty when there are none
  std::optional<double> Total = {};  ///< if it is stored
  Rules Asked = Rules::Positive;
  Notes Noted = {};  ///< of the gaps

  int Order() const { return Cells.Order(); }
  bool IsGiven(int cell) const { return !Givens.IsEmpty() && Givens[cell]; }
  bool HasGaps() const;

  bool operator==(const StoredSquare&) const = default;
};

/// Why something is not a square.
struct Unreadable {
  std::string Why;         ///< one sentence for the player; advice may follow on a line of its own
  bool NamesLine = false;  ///< it says in which line of the text
};

/// What stands below a square: "total 15, hard", "total 15", "hard", "".
std::string TotalAnd(const std::string& caption, const StoredSquare& square);

/// "normal", "positive".
const char* NameOf(Rules rules);

}  // namespace numorra
