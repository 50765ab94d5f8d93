#include "listbox/wildcard.h"

#include <algorithm>
#include <string>

namespace numorra {
namespace {

/// Splits a UTF-8 text into characters. Invalid bytes stand for themselves.
std::u32string Characters(std::string_view text) {
  std::u32string characters;
  for (std::size_t i = 0; i < text.size();) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned char lead = byte(i++);
    const std::size_t following = lead >= 0xf0 ? 3 : lead >= 0xe0 ? 2 : lead >= 0xc0 ? 1 : 0;
    char32_t character = following == 0 ? lead : lead & (0x3f >> following);
    for (std::size_t k = 0; k < following && i < text.size() && (byte(i) & 0xc0) == 0x80; ++k) {
      character = character << 6 | (byte(i++) & 0x3f);
    }
    characters += character;
  }
  return characters;
}

/// One element of a pattern: its first character and the one after its last.
struct Element {
  std::size_t Begin;
  std::size_t End;
};

Element ElementAt(const std::u32string& pattern, std::size_t begin) {
  const std::size_t closing =
      pattern[begin] == U'[' ? pattern.find(U']', begin) : std::u32string::npos;
  return {begin, closing == std::u32string::npos ? begin + 1 : closing + 1};
}

bool InList(char32_t character, std::u32string_view list) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    const bool range = i + 2 < list.size() && list[i + 1] == U'-';
    const char32_t last = range ? list[i + 2] : list[i];
    if (character >= list[i] && character <= last) return true;
    if (range) i += 2;
  }
  return false;
}

bool Matches(char32_t character, const std::u32string& pattern, Element element) {
  const char32_t first = pattern[element.Begin];
  if (element.End - element.Begin > 1) {
    auto list =
        std::u32string_view(pattern).substr(element.Begin + 1, element.End - element.Begin - 2);
    const bool negated = list.starts_with(U'!');
    if (negated) list.remove_prefix(1);
    return InList(character, list) != negated;
  }
  if (first == U'?') return true;
  if (first == U'#') return character >= U'0' && character <= U'9';
  return character == first;
}

}  // namespace

bool MatchesWildcard(std::string_view text, std::string_view pattern) {
  const std::u32string characters = Characters(text);
  const std::u32string elements = Characters(pattern);
  std::size_t at = 0;
  std::size_t in = 0;
  std::size_t afterAsterisk = std::u32string::npos;
  std::size_t takenByAsterisk = 0;
  while (at < characters.size()) {
    if (in < elements.size() && elements[in] == U'*') {
      afterAsterisk = ++in;
      takenByAsterisk = at;
      continue;
    }
    if (in < elements.size()) {
      const Element element = ElementAt(elements, in);
      if (Matches(characters[at], elements, element)) {
        ++at;
        in = element.End;
        continue;
      }
    }
    if (afterAsterisk == std::u32string::npos) return false;
    in = afterAsterisk;
    at = ++takenByAsterisk;
  }
  return std::all_of(elements.begin() + static_cast<std::ptrdiff_t>(in), elements.end(),
                     [](char32_t character) { return character == U'*'; });
}

}  // namespace numorra
