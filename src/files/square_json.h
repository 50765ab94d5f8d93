#pragma once

#include <cstddef>
#include <string>
#include <variant>

#include "files/json_line.h"
#include "files/stored_square.h"

namespace numorra {

/// One JSON object on one line:
/// {"format": "numorra-square", "version": 1, "order": 3, "total": 15, "rules": "normal",
///  "rows": [[8, null, 6], ...], "givens": [[true, false, false], ...]}
/// with null for a gap, and "givens" only where there are any.
std::string JsonOf(const StoredSquare& square);

/// The same object without a line end, for more members to be added.
JsonLine JsonLineOf(const StoredSquare& square);

/// Its rows alone: [[8, null, 6], ...].
std::string JsonRowsOf(const StoredCells& cells);

/// Whether a text is meant to be JSON: its first character is an opening brace.
bool LooksLikeJson(const std::string& text);

/// Reads what JsonOf writes, and any other object that has "rows". Its order is the number of rows
/// where it names none. Members that are not known are passed over; all that is known is held to
/// its kind and range, and a given needs a number. What cannot be read is told with its line, or
/// its row of the square. `firstLine`: the number of the text's first line.
std::variant<StoredSquare, Unreadable> ReadSquareJson(const std::string& text,
                                                      std::size_t firstLine = 1);

}  // namespace numorra
