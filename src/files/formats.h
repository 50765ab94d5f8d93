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

/// A format for writing and reading squares.
struct Format {
  SquareFormat Id;
  const char* Name;     ///< the name for the companion's --format
  const char* Suffix;   ///< of files, without the dot
  const char* Caption;  ///< in file dialogs; empty if the window only reads the format
  const char* Says;     ///< what is written
  bool ForAnswers;      ///< whether the companion also writes its answers in it
  std::string (*Write)(const StoredSquare&);
  bool (*LooksLike)(const std::string& text);  ///< null: for all other texts
  std::variant<StoredSquare, Unreadable> (*Read)(const std::string& text, std::size_t firstLine);
};

/// All formats in the order of SquareFormat: from the plainest, the companion's default, to the one
/// that keeps everything, which the window's dialogs show first.
inline constexpr Format kFormats[] = {
    {SquareFormat::Text, "text", "txt", "", "aligned columns and the total", true, TextOf, nullptr,
     ReadSquareText},
    {SquareFormat::Csv, "csv", "csv", "Numbers alone", "rows of comma-separated numbers", false,
     CsvOf, nullptr, ReadSquareText},
    {SquareFormat::Json, "json", "json", "Squares", "an object on one line", true, JsonOf,
     LooksLikeJson, ReadSquareJson}};

const Format& Of(SquareFormat format);

/// The format of this name; null if there is none.
std::optional<SquareFormat> FormatNamed(std::string_view name);

/// Reads a square in the format that the text looks like, whatever its file name. Refuses texts of
/// more than kMostTextBytes. `firstLine`: the number of the text's first line.
std::variant<StoredSquare, Unreadable> ReadSquare(const std::string& text,
                                                  std::size_t firstLine = 1);

/// The names of all formats, or only of those for answers: "text, csv or json".
std::string FormatNames(bool answersAlone, const std::string& between,
                        const std::string& beforeLast);

}  // namespace numorra
