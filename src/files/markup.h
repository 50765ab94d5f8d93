#pragma once

#include <string>

#include "files/stored_square.h"

namespace numorra {

/// The text with &, <, > and quotes escaped for XML and HTML.
std::string MarkupText(const std::string& text);

/// A picture as an SVG document: the square in a grid, the total and caption below. Cells are 40
/// units wide, or as wide as the longest number needs.
std::string SvgOf(const StoredSquare& square, const std::string& caption = {});

/// A table to put into a web page, with its own style; the total and caption are its caption.
std::string HtmlOf(const StoredSquare& square, const std::string& caption = {});

}  // namespace numorra
