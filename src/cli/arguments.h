#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace numorra {

enum class SquareFormat { Text, Csv, Json };

/// The square that a command line asks for.
struct SquareRequest {
  int Size = 0;
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
