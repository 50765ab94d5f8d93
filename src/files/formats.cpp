#include "files/formats.h"

namespace numorra {

const Format& Of(SquareFormat format) {
  return kFormats[static_cast<std::size_t>(format)];
}

std::optional<SquareFormat> FormatNamed(std::string_view name) {
  for (const Format& format : kFormats) {
    if (format.Name == name) return format.Id;
  }
  return std::nullopt;
}

std::variant<StoredSquare, Unreadable> ReadSquare(const std::string& text, std::size_t firstLine) {
  if (text.size() > kMostTextBytes) return Unreadable{kTooLongForASquare};
  for (const Format& format : kFormats) {
    if (format.LooksLike && format.LooksLike(text)) return format.Read(text, firstLine);
  }
  return Of(SquareFormat::Text).Read(text, firstLine);
}

}  // namespace numorra
