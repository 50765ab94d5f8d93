#include "words/say.h"

#include <array>
#include <cctype>
#include <cstddef>

namespace numorra {
namespace {

constexpr std::size_t kGroup = 3;
constexpr std::size_t kMostUngrouped = 4;  // digits that stand without a separator in any language

/// How a language writes numbers in sentences.
struct NumberStyle {
  std::string Minus;
  std::string Separator;
  std::string Point;
};

bool IsDigit(char c) {
  return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

/// Catalogues show the style by an example, from which its signs are read.
NumberStyle StyleOfLanguage() {
  // Translators: write this number as your language does, with the same digits. Without a separator
  // between groups of digits, none is used.
  const std::string example = SayIn("example of a number", "-1234567.5");
  std::array<std::string, 4> signs;  // before the first of the digits 1, 2, 5 and 5
  std::string sign;
  std::size_t digits = 0;
  for (const char c : example) {
    if (!IsDigit(c)) {
      sign += c;
      continue;
    }
    if (digits == 0) signs[0] = sign;
    if (digits == 1) signs[1] = sign;
    if (digits == 7) signs[2] = sign;
    sign.clear();
    ++digits;
  }
  return {signs[0], signs[1], signs[2]};
}

}  // namespace

std::string Written(std::string_view number) {
  const NumberStyle style = StyleOfLanguage();
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

std::string Filled(std::string_view phrase, std::initializer_list<Filling> fillings) {
  std::string text;
  for (std::size_t i = 0; i < phrase.size(); ++i) {
    const bool place = phrase[i] == '%' && i + 1 < phrase.size() && IsDigit(phrase[i + 1]);
    const std::size_t filling = place ? static_cast<std::size_t>(phrase[i + 1] - '1') : 0;
    if (place && filling < fillings.size()) {
      text += fillings.begin()[filling].Text;
      ++i;
    } else {
      text += phrase[i];
    }
  }
  return text;
}

}  // namespace numorra
