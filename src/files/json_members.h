#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "files/stored_square.h"

namespace numorra {

/// A JSON value, as far as squares use it.
struct JsonValue {
  enum class Kind : std::uint8_t { Null, Boolean, Number, Text, Other };

  Kind Is = Kind::Other;
  double Number = 0;  ///< 1 or 0 for a boolean
  std::string Text = {};
};

/// A member of an object: a value, or an array with the entries of each of its arrays. An entry
/// that is not an array counts as an empty one.
struct JsonMember {
  JsonValue Value;
  std::vector<std::vector<JsonValue>> Rows;
};

using JsonMembers = std::map<std::string, JsonMember>;

/// The members of the one JSON object in `text`, whose first line has the number `firstLine`. Skips
/// deeper values of any depth. Throws Unreadable, with line and column, if the text is not JSON, if
/// a number does not fit in a double, or if there is text after the object.
JsonMembers JsonMembersIn(const std::string& text, std::size_t firstLine);

}  // namespace numorra
