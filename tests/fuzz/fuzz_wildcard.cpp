#include "fuzz/check.h"
#include "listbox/wildcard.h"

using namespace numorra;

/// The pattern is the input before the first line end, the text is the rest.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input = TextOf(data, size);
  const std::size_t end = input.find('\n');
  const std::string pattern = input.substr(0, end);
  const std::string text = end == std::string::npos ? "" : input.substr(end + 1);
  const bool matches = MatchesWildcard(text, pattern);
  Check(MatchesWildcard(text, "*"));
  if (matches) Check(MatchesWildcard(text, pattern + "*") && MatchesWildcard(text, "*" + pattern));
  if (pattern.find_first_of("?*#[") == std::string::npos && pattern == text) Check(matches);
  return 0;
}
