#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "files/latex.h"
#include "files/markup.h"
#include "files/nested_list.h"
#include "files/square_json.h"
#include "files/square_text.h"
#include "files/stored_square.h"
#include "words/say.h"

namespace numorra {

enum class SquareFormat : std::uint8_t { Text, Csv, Tex, Python, Mathematica, Svg, Html, Json };

/// A format for writing and reading squares.
struct Format {
  SquareFormat Id;
  bool ForAnswers;      ///< whether the companion also writes its answers in it
  const char* Name;     ///< the name for the companion's --format
  const char* Suffix;   ///< of files, without the dot
  const char* Caption;  ///< in file dialogs; empty if the window does not write the format
  const char* Says;     ///< what is written
  std::string (*Write)(const StoredSquare&, const std::string& caption);
  /// Null for a format that is only written.
  std::variant<StoredSquare, Unreadable> (*Read)(const std::string& text,
                                                 std::size_t firstLine) = nullptr;
  bool (*LooksLike)(const std::string& text) = nullptr;  ///< null for those without a mark
};

/// All formats in the order of SquareFormat: from the plainest, the companion's default, to the one
/// that keeps everything, which the window's dialogs show first.
inline constexpr Format kFormats[] = {
    {SquareFormat::Text, true, "text", "txt", "", Mark("aligned columns and the total"), TextOf,
     ReadSquareText},
    {SquareFormat::Csv, false, "csv", "csv", Mark("Numbers alone"),
     Mark("rows of comma-separated numbers"), CsvOf, ReadSquareText},
    {SquareFormat::Tex, false, "tex", "tex", Mark("LaTeX tables"), Mark("a LaTeX table"), LatexOf,
     ReadLatex, LooksLikeLatex},
    {SquareFormat::Python, false, "python", "py", "", Mark("a list of lists"), PythonListOf,
     ReadNestedList, LooksLikeNestedList},
    {SquareFormat::Mathematica, false, "mathematica", "wl", "", Mark("the same with braces"),
     MathematicaListOf, ReadNestedList, LooksLikeNestedList},
    {SquareFormat::Svg, false, "svg", "svg", "", Mark("a picture of one square"), SvgOf},
    {SquareFormat::Html, false, "html", "html", "", Mark("a table for a web page"), HtmlOf},
    {SquareFormat::Json, true, "json", "json", Mark("Squares"), Mark("an object on one line"),
     JsonOf, ReadSquareJson, LooksLikeJson}};

const Format& Of(SquareFormat format);

/// The format of this name; null if there is none.
std::optional<SquareFormat> FormatNamed(std::string_view name);

/// Reads a square in the format that the text looks like, whatever its file name. Refuses texts of
/// more than kMostTextBytes. `firstLine`: the number of the text's first line.
std::variant<StoredSquare, Unreadable> ReadSquare(const std::string& text,
                                                  std::size_t firstLine = 1);

/// The names of all formats, or only of those for answers: "text, csv or json".
std::string FormatNames(bool answersAlone);

}  // namespace numorra
