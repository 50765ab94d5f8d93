#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "files/square_json.h"
#include "files/square_text.h"
#include "files/stored_square.h"

namespace numorra {

enum class SquareFormat : std::uint8_t { Text, Csv, Json };

/// A form in which squares are written and read.
struct Format {
  SquareFormat Id;
  const char* Name;     ///< as the companion's --format has it
  const char* Suffix;   ///< of files, without its point
  const char* Caption;  ///< in the dialog for a file's name; empty where the window only reads it
  const char* Says;     ///< what is written
  bool ForAnswers;      ///< whether the companion's answers about squares are written in it, too
  std::string (*Write)(const StoredSquare&);
  bool (*LooksLike)(const std::string& text);  ///< nothing: for texts that look like no other
  std::variant<StoredSquare, Unreadable> (*Read)(const std::string& text, std::size_t firstLine);
};

/// All formats, as SquareFormat numbers them: from the plainest, which the companion writes unless
/// it is told otherwise, to the one that keeps all of a square, which the window's dialogs show
/// first.
inline constexpr Format kFormats[] = {
    {SquareFormat::Text, "text", "txt", "", "aligned columns and the total", true, TextOf, nullptr,
     ReadSquareText},
    {SquareFormat::Csv, "csv", "csv", "Numbers alone", "rows of comma-separated numbers", false,
     CsvOf, nullptr, ReadSquareText},
    {SquareFormat::Json, "json", "json", "Squares", "an object on one line", true, JsonOf,
     LooksLikeJson, ReadSquareJson}};

const Format& Of(SquareFormat format);

/// The format of this name; nothing where there is none.
std::optional<SquareFormat> FormatNamed(std::string_view name);

/// Reads a square in the format that the text looks like, whatever the name of its file says.
/// Refuses texts of more than kMostTextBytes. `firstLine`: the number of the text's first line.
std::variant<StoredSquare, Unreadable> ReadSquare(const std::string& text,
                                                  std::size_t firstLine = 1);

}  // namespace numorra
