#pragma once

#include <map>
#include <string>
#include <vector>

#include "publish/json_tokens.h"

namespace numorra {

/// Writes JSON objects that differ in little but their numbers in a small space, as sentences do
/// that a program made. An object is the array of its form and its values: the form is its text
/// with a line end in place of each number, each list of numbers and each object within it; the
/// values are what was there. A list is a string, and so is a number that would not come back from
/// a double as it was written.
///
///     {"says": "row 2 needs 3, 5 or 7"}
///     is the array   [0,2,"3, 5 or 7"]   of form 0   {"says":"row \n needs \n"}
///
/// Line ends cannot occur in the text itself, since JSON escapes them.
class ObjectForms {
 public:
  /// The array of an object, whose tokens begin and end with its braces. Objects within objects
  /// within it are left as they are.
  std::string Packed(JsonSpan object) { return Packed(object, 1); }

  /// All forms so far as a JSON array of strings.
  std::string Table() const;

 private:
  std::string Packed(JsonSpan object, int level);
  std::size_t NumberOf(const std::string& form);

  std::map<std::string, std::size_t> numbers_;
  std::vector<std::string> forms_;
};

}  // namespace numorra
