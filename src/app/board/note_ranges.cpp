#include "app/board/note_ranges.h"

#include <charconv>
#include <sstream>

namespace numorra {
namespace {

/// The whole number from 1 to `most` that is all of `text`; otherwise 0.
int NumberOf(std::string_view text, int most) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && number >= 1 && number <= most ? number : 0;
}

}  // namespace

std::string RangesOf(const NoteSet& numbers, const NoteSet& skipped) {
  std::string text;
  const auto at = [](int number) { return static_cast<std::size_t>(number); };
  for (int number = 1; number <= kMostNoted; ++number) {
    if (!numbers[at(number)]) continue;
    int last = number;
    for (int next = number + 1; next <= kMostNoted; ++next) {
      if (numbers[at(next)]) {
        last = next;
      } else if (!skipped[at(next)]) {
        break;
      }
    }
    text += (text.empty() ? "" : " ") + std::to_string(number);
    if (last > number) text += "-" + std::to_string(last);
    number = last;
  }
  return text;
}

std::optional<NoteSet> NumbersInRanges(std::string_view text, int most) {
  NoteSet numbers;
  std::istringstream words{std::string(text)};
  for (std::string word; words >> word;) {
    const std::size_t dash = word.find('-');
    const int first = NumberOf(std::string_view(word).substr(0, dash), most);
    const int last =
        dash == std::string::npos ? first : NumberOf(std::string_view(word).substr(dash + 1), most);
    if (first == 0 || last < first) return std::nullopt;
    for (int number = first; number <= last; ++number)
      numbers.set(static_cast<std::size_t>(number));
  }
  return numbers;
}

}  // namespace numorra
