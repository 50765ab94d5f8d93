#pragma once

#include <cstddef>
#include <string>
#include <variant>

#include "files/stored_square.h"

namespace numorra {

/// A tabular environment with lines between the cells, and the caption below. Without a caption,
/// the total stands in a comment.
std::string LatexOf(const StoredSquare& square, const std::string& caption = {});

/// Whether a text looks like LaTeX: an environment begins in it.
bool LooksLikeLatex(const std::string& text);

/// Reads the first environment with rows, such as tabular, array or pmatrix: cells between &, rows
/// ended by \\. Commands around numbers, such as \hline or \textbf, and dollar signs do not
/// count. `firstLine`: the number of the text's first line.
std::variant<StoredSquare, Unreadable> ReadLatex(const std::string& text,
                                                 std::size_t firstLine = 1);

}  // namespace numorra
