#pragma once

#include <cstddef>
#include <string>
#include <variant>

#include "files/stored_square.h"
#include "words/say.h"

namespace numorra {

/// The longest text that is read, in bytes: some hundred characters for each of 2,500 numbers.
inline constexpr std::size_t kMostTextBytes = 1 << 20;

/// The message for longer ones.
inline constexpr const char* kTooLongForASquare = Mark("this is too long for a square of numbers");

/// Reads a square of 3 x 3 to 50 x 50 cells as people and programs write it, without a total.
///
/// - One line per row, ended by LF, CR or both; empty lines around the square do not count. The
///   number of lines is the order, so that fields at a line's end may be missing.
/// - Numbers separated by tabs, by semicolons, by commas, or by blanks, the first of these that the
///   line has. A separator at the end of every line is ignored.
/// - A literal in brackets, with semicolons or line ends between the rows: [8 1 6; 3 5 7; 4 9 2].
/// - UTF-8: a byte-order mark, no-break spaces and U+2212 as minus are accepted too.
/// - A gap is nothing, or one of - . _ between separators.
/// - # starts a comment, which ends with its line.
/// - Between tabs and semicolons a decimal comma counts as a point if no number of the square has a
///   point, and one of them cannot be a large number with a comma for its thousands.
/// - A number has at most kMostCellDigits digits.
///
/// `firstLine`: the number of the text's first line, used in messages.
std::variant<StoredSquare, Unreadable> ReadSquareText(const std::string& text,
                                                      std::size_t firstLine = 1);

/// Aligned columns, a dot for a gap, and the total and caption below, if any.
std::string TextOf(const StoredSquare& square, const std::string& caption = {});

/// Only the numbers, for spreadsheets: separated by commas, one line per row, nothing for a gap,
/// and no caption.
std::string CsvOf(const StoredSquare& square, const std::string& caption = {});

/// Whether a line contains no field, not even an empty one.
bool IsEmptyLine(const std::string& line);

}  // namespace numorra
