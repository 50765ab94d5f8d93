#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace numorra {

/// The tokens of a JSON text, without the blanks between them: brackets, commas, colons, strings in
/// their quotes, numbers, literals. They point into the text, which must be valid JSON.
std::vector<std::string_view> JsonTokensOf(std::string_view json);

using JsonSpan = std::span<const std::string_view>;

/// The tokens of the value that begins at the first of `tokens`.
JsonSpan FirstValue(JsonSpan tokens);

/// The tokens of a member's value, and none if an object has no such member. `object` begins with
/// its brace; `name` has no characters that JSON escapes.
JsonSpan MemberOf(JsonSpan object, std::string_view name);

/// The values in an array, which begins with its bracket.
std::vector<JsonSpan> ElementsOf(JsonSpan array);

}  // namespace numorra
