#include <sstream>

#include "cli/arguments.h"
#include "fuzz/check.h"

using namespace numorra;

/// Words are separated by blanks. Accepted arguments are within the documented bounds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream input(TextOf(data, size));
  std::vector<std::string> words;
  for (std::string word; std::getline(input, word, ' ');)
    words.push_back(word);
  const Arguments arguments = ParseArguments(words);
  if (const auto* bad = std::get_if<BadArguments>(&arguments)) Check(!bad->Message.empty());
  if (const auto* request = std::get_if<SquareRequest>(&arguments)) {
    const bool sized = request->Size >= 3 && request->Size <= 50;
    if (request->Command == SquareCommand::Build) Check(request->Top.has_value() != sized);
    if (request->Command == SquareCommand::Puzzle) Check(sized);
    Check(request->Count >= 1 && request->Seconds > 0);
    Check(!request->Sum || *request->Sum > 0);
    const bool planned = request->Command != SquareCommand::Complete && !request->LimitToNine;
    Check(!request->Sum || !planned || *request->Sum < 32768.0 * request->Size);
    Check(!request->Corner || *request->Corner >= 1);
  }
  return 0;
}
