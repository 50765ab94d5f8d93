#pragma once

#include <cstddef>
#include <string>
#include <variant>

#include "files/stored_square.h"

namespace numorra {

/// One line as Python writes a list of lists, with None for a gap: [[8, None, 6], ...]. Without
/// gaps, it is JSON too.
std::string PythonListOf(const StoredSquare& square, const std::string& caption = {});

/// One line as Mathematica writes a list of lists, with Null for a gap: {{8, Null, 6}, ...}.
std::string MathematicaListOf(const StoredSquare& square, const std::string& caption = {});

/// Whether a text looks like a list of lists: it begins with two opening brackets of any kind.
bool LooksLikeNestedList(const std::string& text);

/// Reads a list of lists in brackets, braces or parentheses, with blanks and line ends anywhere. A
/// gap is nothing, or null, Null, None or nan. `firstLine`: the number of the text's first line.
std::variant<StoredSquare, Unreadable> ReadNestedList(const std::string& text,
                                                      std::size_t firstLine = 1);

}  // namespace numorra
