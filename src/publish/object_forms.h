#pragma once

#include <map>
#include <string>
#include <vector>

#include "publish/json_tokens.h"

namespace numorra {

/// Writes JSON objects that differ in little but their numbers in a small space, as sentences do
/// that a program made. An object is the array of its form and its values: the form is its text
/// with a line end in place of each number, each list of numbers and each array of objects within
/// it; the values are what was there. A list is a string, and so is a number that would not come
/// back from a double as it was written. An array of objects is the array of these arrays.
///
///     [{"says": "row 2 needs 3, 5 or 7"}, {"says": "row 4 needs 9"}]
///     is   [[0,2,"3, 5 or 7"],[0,4,9]]   with form 0   {"says":"row \n needs \n"}
///
/// Line ends cannot occur in the text itself, since JSON escapes them.
class ObjectForms {
 public:
  /// An array of objects, from its bracket on. Within the objects within it, all arrays are left as
  /// they are.
  std::string Packed(JsonSpan objects) { return Packed(objects, 1); }

  /// All forms so far as a JSON array of strings.
  std::string Table() const;

 private:
  std::string Packed(JsonSpan objects, int level);
  std::string PackedObject(JsonSpan object, int level);
  std::size_t NumberOf(const std::string& form);

  std::map<std::string, std::size_t> numbers_;
  std::vector<std::string> forms_;
};

/// Whether a value is an array of objects only.
bool AreObjects(JsonSpan value);

}  // namespace numorra
