#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "app/board/rules.h"
#include "cli/commands.h"
#include "cli/count_request.h"
#include "files/formats.h"
#include "generate/construction.h"
#include "generate/top_row_square.h"
#include "puzzle/kind_lines.h"
#include "puzzle/puzzle_set.h"
#include "study/special.h"

namespace numorra {

/// The request of a command line. Which options apply depends on the command.
struct SquareRequest {
  SquareCommand Command = SquareCommand::Build;
  SquareFormat Format = SquareFormat::Text;

  /// Squares to build: normal ones, ones of any total if a sum, the limit or a corner is given, 4 x
  /// 4 ones with a top row, ones of a special kind, or ones of a named construction.
  int Size = 0;
  std::optional<double> Sum;
  bool LimitToNine = false;
  std::optional<int> Corner;
  std::optional<TopRow> Top;
  std::optional<std::string> TopRows;  ///< a file with a name and a top row on each line
  const SpecialKind* Kind = nullptr;
  const Construction* By = nullptr;  ///< the construction to build with, if one is named
  bool Vary = false;
  bool Fresh = false;  ///< drawn from all squares, not made by a construction
  int Count = 1;
  std::optional<std::uint64_t> Seed;

  /// The puzzles to make; their squares are normal or have the sum.
  std::vector<GradeShare> Grades;
  std::optional<int> ClueCount;
  bool Symmetric = false;
  bool Steps = false;                ///< with the way to solve each
  std::optional<std::string> Title;  ///< of a page

  /// The file with the codes of puzzles to write instead of new ones; "-" is the standard input.
  std::optional<std::string> Codes;

  /// The file with the squares; "-" is the standard input.
  std::string File = "-";

  /// The rules for filling gaps, if not those that the square itself suggests, and the time limit
  /// of each search.
  std::optional<Rules> RulesWanted;
  double Seconds = 3;
  LineKind LinesWanted = LineKind::Magic;  ///< what the filled square is to be
};

struct HelpRequest {};
struct VersionRequest {};

struct CompletionsRequest {
  std::string Shell;
};

/// One line that says what is wrong with a command line.
struct BadArguments {
  std::string Message;
};

using Arguments = std::variant<SquareRequest, CountRequest, HelpRequest, VersionRequest,
                               CompletionsRequest, BadArguments>;

/// Reads the words after the program's name. The value of an option is the next word, or follows an
/// equals sign.
Arguments ParseArguments(const std::vector<std::string>& words);

}  // namespace numorra
