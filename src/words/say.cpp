#include "words/say.h"

#include <cctype>
#include <cstddef>

namespace numorra {
namespace {

constexpr std::size_t kGroup = 3;
constexpr std::size_t kMostUngrouped = 4;  // digits that stand without a separator in any language

bool IsDigit(char c) {
  return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

}  // namespace

NumberStyle StyleIn(std::string_view example) {
  // The signs stand before the first and second digit, and before the last one.
  const auto digit = [&](std::size_t from) { return example.find_first_of("0123456789", from); };
  const std::size_t first = digit(0);
  const std::size_t second = digit(first + 1);
  const std::size_t last = example.find_last_of("0123456789");
  if (second == std::string_view::npos || last < second + 2) return {"-", "", "."};
  const std::size_t point = example.find_last_of("0123456789", last - 1) + 1;
  return {std::string(example.substr(0, first)),
          std::string(example.substr(first + 1, second - first - 1)),
          std::string(example.substr(point, last - point))};
}

std::string Written(std::string_view number, const NumberStyle& style) {
  std::string text;
  if (number.starts_with('-')) {
    text = style.Minus;
    number.remove_prefix(1);
  }
  const std::size_t point = std::min(number.find('.'), number.size());
  for (std::size_t i = 0; i < point; ++i) {
    if (i > 0 && point > kMostUngrouped && (point - i) % kGroup == 0) text += style.Separator;
    text += number[i];
  }
  if (point < number.size()) text.append(style.Point).append(number.substr(point + 1));
  return text;
}

std::string Written(std::string_view number) {
  if (SpeaksEnglish()) return std::string(number);
  // Translators: write this number as your language does, with the same digits. If your language
  // separates groups of digits only in long numbers, do so here: short ones stay without.
  return Written(number, StyleIn(SayIn("example of a number", "-1234567.5")));
}

std::string Filled(std::string_view phrase, std::initializer_list<Filling> fillings) {
  std::size_t size = phrase.size();
  for (const Filling& filling : fillings)
    size += filling.Text().size();
  std::string text;
  text.reserve(size);
  for (std::size_t sign = 0; (sign = phrase.find('%')) < phrase.size() - 1;) {
    const auto filling = static_cast<std::size_t>(phrase[sign + 1] - '1');
    const bool place = IsDigit(phrase[sign + 1]) && filling < fillings.size();
    text += phrase.substr(0, place ? sign : sign + 1);
    if (place) text += fillings.begin()[filling].Text();
    phrase.remove_prefix(place ? sign + 2 : sign + 1);
  }
  return text.append(phrase);
}

}  // namespace numorra
