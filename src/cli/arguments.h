#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "generate/top_row_square.h"

namespace numorra {

enum class SquareFormat { Text, Csv, Json };

/// The square that a command line asks for: a normal one, one of any total when a sum, the limit or
/// a corner is given, or a 4 x 4 one with a top row.
struct SquareRequest {
  int Size = 0;
  std::optional<int> Sum;
  bool LimitToNine = false;
  std::optional<int> Corner;
  std::optional<TopRow> Top;
  SquareFormat Format = SquareFormat::Text;
  std::optional<std::uint64_t> Seed;
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
extern const char* const kUsage;

}  // namespace numorra
