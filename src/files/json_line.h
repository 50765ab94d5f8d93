#pragma once

#include <string>
#include <string_view>

namespace numorra {

/// Writes one JSON object on one line, with a blank after each comma and colon. Members appear in
/// the order in which they are added; their values must be JSON already.
///
/// It does not use the JSON library's values: their destructors allocate memory, and a refused
/// allocation there would end the program.
class JsonLine {
 public:
  JsonLine& Add(std::string_view name, std::string_view value);

  /// The object, without a line end.
  std::string Text() const { return text_ + "}"; }

 private:
  std::string text_ = "{";
};

/// The text in quotes, escaped. Invalid UTF-8 is replaced.
std::string JsonString(const std::string& text);

/// The array of valueAt(0) to valueAt(count - 1).
template <class ValueAt>
std::string JsonArray(int count, ValueAt valueAt) {
  std::string text = "[";
  for (int i = 0; i < count; ++i)
    text.append(i > 0 ? ", " : "").append(valueAt(i));
  return text + "]";
}

}  // namespace numorra
