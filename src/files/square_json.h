#pragma once

#include <cstddef>
#include <string>
#include <variant>

#include "files/json_line.h"
#include "files/stored_square.h"

namespace numorra {

/// One JSON object on one line:
/// {"format": "numorra-square", "version": 1, "order": 3, "total": 15, "rules": "normal",
///  "rows": [[8, null, 6], ...], "givens": [[true, false, false], ...],
///  "notes": [["", "1-3 7", ""], ...]}
/// with null for a gap, and "givens" and "notes" only if there are any. A range of notes covers
/// numbers that are on the board, which are no notes.
/// It has no place for a caption.
std::string JsonOf(const StoredSquare& square, const std::string& caption = {});

/// The same object without a line end, so that members can be added.
JsonLine JsonLineOf(const StoredSquare& square);

/// Only its rows: [[8, null, 6], ...].
std::string JsonRowsOf(const StoredCells& cells);

/// Whether a text looks like JSON: its first character is an opening brace.
bool LooksLikeJson(const std::string& text);

/// Reads what JsonOf writes, and any other object that has "rows". Without "order", the order is
/// the number of rows. Unknown members are skipped; the type and range of known ones are checked,
/// a given must have a number, and only gaps have notes. Errors name the line, or the row of the
/// square. `firstLine`: the number of the text's first line.
std::variant<StoredSquare, Unreadable> ReadSquareJson(const std::string& text,
                                                      std::size_t firstLine = 1);

}  // namespace numorra
