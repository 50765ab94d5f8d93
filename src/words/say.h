#pragma once

#include <concepts>
#include <initializer_list>
#include <string>
#include <string_view>

#include "words/language.h"

/// Everything that the program tells is a whole phrase with places, `%1` to `%9`, and what stands
/// in them: Say("%1 adds up to %2, not %3", line, sum, total). A phrase is never glued together,
/// since other languages order and bend words in other ways. Texts in boards, files and codes are
/// not said. scripts/update-words collects the phrases from the calls of these functions for the
/// catalogues.
namespace numorra {

/// How a language writes numbers in sentences.
struct NumberStyle {
  std::string Minus;
  std::string Separator;  ///< between groups of three digits, in numbers of five digits or more
  std::string Point;
};

/// The style of an example: the number -1234567.5 as the language writes it. That of English if it
/// is no number.
NumberStyle StyleIn(std::string_view example);

/// The plain decimal number, such as "-12345.6", in that style, or as the reader's language writes
/// it.
std::string Written(std::string_view number, const NumberStyle& style);
std::string Written(std::string_view number);
std::string Written(std::integral auto number) {
  return Written(std::string_view(std::to_string(number)));
}

/// What stands in a place: a text as it is, or a whole number as the reader's language writes it.
/// Refers to a text, which must live as long.
class Filling {
 public:
  Filling(const std::string& text) : text_(text) {}
  Filling(std::string_view text) : text_(text) {}
  Filling(const char* text) : text_(text) {}
  template <std::integral Number>
  requires(!std::same_as<Number, bool> && !std::same_as<Number, char>) Filling(Number number)
      : number_(Written(number)) {}

  std::string_view Text() const { return number_.empty() ? text_ : std::string_view(number_); }

 private:
  std::string number_;
  std::string_view text_;
};

/// `phrase` with its places filled; a place without a filling stays as it is.
std::string Filled(std::string_view phrase, std::initializer_list<Filling> fillings);

/// The phrase in the reader's language, its places filled.
template <typename... Fillings>
std::string Say(const char* phrase, const Fillings&... fillings) {
  return Filled(Translated(nullptr, phrase), {Filling(fillings)...});
}

/// The same for a phrase that has several meanings, told apart by `context`.
template <typename... Fillings>
std::string SayIn(const char* context, const char* phrase, const Fillings&... fillings) {
  return Filled(Translated(context, phrase), {Filling(fillings)...});
}

/// The phrase for `count` things. `%1` is the count; the fillings follow from `%2` on.
template <typename... Fillings>
std::string SayCounted(const char* one, const char* many, std::integral auto count,
                       const Fillings&... fillings) {
  const auto size = static_cast<unsigned long>(count < 0 ? -count : count);
  return Filled(Translated(one, many, size), {Filling(count), Filling(fillings)...});
}

/// Mark a phrase in a table for the catalogues. It is said where it is shown.
constexpr const char* Mark(const char* phrase) {
  return phrase;
}
constexpr const char* MarkIn(const char* /*context*/, const char* phrase) {
  return phrase;
}

}  // namespace numorra
