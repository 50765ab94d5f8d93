#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "files/stored_square.h"

namespace numorra {

/// The fields of a row as they are written, and the number of their line in the text, from 1.
struct FieldRow {
  std::size_t Line = 1;
  std::vector<std::string> Fields = {};
};

/// Throws Unreadable for texts that are too long or not UTF-8.
void CheckText(const std::string& text);

/// Throws Unreadable unless a square can have so many rows.
void CheckOrder(std::size_t rows);

/// The square whose order is the number of rows. A gap is a field that is empty or one of - . _;
/// fields at the end of a row may be missing. Throws Unreadable with the line.
StoredSquare SquareOfFields(const std::vector<FieldRow>& rows);

/// Replaces `from` everywhere in a text, in one pass.
void ReplaceAll(std::string& text, const std::string& from, const std::string& to);

}  // namespace numorra
