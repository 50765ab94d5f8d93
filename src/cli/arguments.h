#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "app/board/rules.h"
#include "files/formats.h"
#include "generate/top_row_square.h"
#include "puzzle/candidates.h"
#include "study/special.h"

namespace numorra {

/// What the first word asks for: squares to be built, when it is none of the others.
enum class SquareCommand : std::uint8_t { Build, Study, Complete, Puzzle };

/// What a command line asks for. Which of the options there are is up to the command.
struct SquareRequest {
  SquareCommand Command = SquareCommand::Build;
  SquareFormat Format = SquareFormat::Text;

  /// Squares to be built: normal ones, ones of any total when a sum, the limit or a corner is
  /// given, 4 x 4 ones with a top row, or ones of a special kind.
  int Size = 0;
  std::optional<double> Sum;
  bool LimitToNine = false;
  std::optional<int> Corner;
  std::optional<TopRow> Top;
  const SpecialKind* Kind = nullptr;
  bool Vary = false;
  int Count = 1;
  std::optional<std::uint64_t> Seed;

  /// What puzzles are to be like, whose squares are normal ones or have the sum.
  Grade Wanted = Grade::Easy;
  std::optional<int> Clues;

  /// Where squares are to be read from; "-" is the standard input.
  std::string File = "-";

  /// By which rules gaps are filled, where not by those that the square itself suggests, and how
  /// long is searched for each.
  std::optional<Rules> RulesWanted;
  double Seconds = 3;
  LineKind LinesWanted = LineKind::Magic;  ///< what the filled square is to be
};

struct HelpRequest {};
struct VersionRequest {};

/// One line that says what is wrong with a command line.
struct BadArguments {
  std::string Message;
};

using Arguments = std::variant<SquareRequest, HelpRequest, VersionRequest, BadArguments>;

/// Reads the words after the program's name. Values follow their option as the next word or behind
/// an equals sign.
Arguments ParseArguments(const std::vector<std::string>& words);

/// What --help prints.
std::string Usage();

}  // namespace numorra
