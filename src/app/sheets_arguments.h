#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "cli/arguments.h"
#include "print/sheet_options.h"
#include "words/say.h"

namespace numorra {

/// Worksheets to write as PDF files, without a window.
struct SheetsRequest {
  std::string File;
  std::optional<std::string> Answers;  ///< a file for the answers; otherwise they come last
  int PerPage = 6;                     ///< 1, 2, 4 or 6
  std::string Title = Say("Magic squares");
  bool TotalGiven = true;
  bool Landscape = false;
  bool Letter = false;  ///< paper; otherwise A4
  SheetOptions Options = {};
  SquareRequest Puzzles;
};

/// Whether a command line asks for worksheets.
bool AsksForSheets(const std::vector<std::string>& words);

/// Reads the words after the program's name: the options of sheets, and those of the companion's
/// puzzles. The text says what is wrong, in one sentence.
std::variant<SheetsRequest, std::string> ParseSheetsArguments(
    const std::vector<std::string>& words);

}  // namespace numorra
