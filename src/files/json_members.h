#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "files/stored_square.h"

namespace numorra {

/// A value in JSON, as far as squares have them.
struct JsonValue {
  enum class Kind : std::uint8_t { Null, Boolean, Number, Text, Other };

  Kind Is = Kind::Other;
  double Number = 0;  ///< of a boolean 1 or 0
  std::string Text = {};
};

/// A member of an object: a value, or an array with what stands in each of its arrays. An entry
/// that is no array counts as an empty one.
struct JsonMember {
  JsonValue Value;
  std::vector<std::vector<JsonValue>> Rows;
};

using JsonMembers = std::map<std::string, JsonMember>;

/// The members of the one JSON object in `text`, of which the first line has the number
/// `firstLine`. What lies deeper is passed over, however deep it is. Throws Unreadable, with line
/// and column, where the text is no JSON, where a number is beyond those of a double, and where
/// something follows the object.
JsonMembers JsonMembersIn(const std::string& text, std::size_t firstLine);

}  // namespace numorra
