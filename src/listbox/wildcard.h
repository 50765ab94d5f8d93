#pragma once

#include <string_view>

namespace numorra {

/// Whether the whole of `text` matches `pattern` (both UTF-8): `?` is any one character, `*` any
/// run of characters, `#` one digit, `[a-z5]` one of those characters, `[!a-z5]` one that is not;
/// every other character is itself, an opening bracket that is never closed too.
///
/// At a mismatch the last asterisk takes one character more and the rest is tried anew; earlier
/// asterisks need not be looked at again, so the work is at most text times pattern.
bool MatchesWildcard(std::string_view text, std::string_view pattern);

}  // namespace numorra
