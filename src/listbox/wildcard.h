#pragma once

#include <string_view>

namespace numorra {

/// Whether the whole of `text` matches `pattern` (both UTF-8): `?` is any one character, `*` any
/// run of characters, `#` one digit, `[a-z5]` one of those characters, `[!a-z5]` one that is not;
/// every other character is itself, and so is an opening bracket without a closing one.
///
/// At a mismatch the last asterisk takes one more character and the rest is tried again; earlier
/// asterisks need not be reconsidered, so the work is at most text times pattern.
bool MatchesWildcard(std::string_view text, std::string_view pattern);

}  // namespace numorra
