#pragma once

#include <string>
#include <string_view>

namespace numorra {

/// Writes one JSON object on one line, with a blank behind each comma and colon. Members stand in
/// the order in which they are added; their values are JSON already.
///
/// Values of the JSON library are not used for this: they allocate memory while they are destroyed,
/// so that memory refused there would end the program.
class JsonLine {
 public:
  JsonLine& Add(std::string_view name, std::string_view value);

  /// The object, without a line end.
  std::string Text() const { return text_ + "}"; }

 private:
  std::string text_ = "{";
};

/// The text in quotes, escaped. What is not UTF-8 in it is replaced.
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
