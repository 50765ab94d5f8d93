#include "files/formats.h"

#include "words/say.h"

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
  if (text.size() > kMostTextBytes) return Unreadable{Say(kTooLongForASquare)};
  for (const Format& format : kFormats) {
    if (format.LooksLike && format.LooksLike(text)) return format.Read(text, firstLine);
  }
  return Of(SquareFormat::Text).Read(text, firstLine);
}

std::string FormatNames(bool answersAlone) {
  std::vector<std::string> names;
  for (const Format& format : kFormats) {
    if (format.ForAnswers || !answersAlone) names.emplace_back(format.Name);
  }
  std::string text = names[0];
  for (std::size_t i = 1; i + 1 < names.size(); ++i)
    text = Say("%1, %2", text, names[i]);
  return Say("%1 or %2", text, names.back());
}

}  // namespace numorra
