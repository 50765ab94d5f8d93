#include "puzzle/code_list.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <optional>
#include <sstream>
#include <string_view>
#include <utility>

#include "puzzle/code.h"
#include "words/say.h"

namespace numorra {
namespace {

/// A run of letters and digits.
struct Word {
  std::string Text;
  bool GoesOn = false;  ///< only spaces, tabs and hyphens stand between it and the next word
};

std::vector<Word> WordsOf(const std::string& line) {
  constexpr std::string_view kBetweenGroups = " \t-";
  std::vector<Word> words;
  bool inWord = false;
  for (const char character : line) {
    const bool isPart = std::isalnum(static_cast<unsigned char>(character)) != 0;
    if (isPart && !inWord) words.emplace_back();
    if (isPart) {
      words.back().Text += character;
      words.back().GoesOn = true;
    } else if (!words.empty() && kBetweenGroups.find(character) == std::string_view::npos) {
      words.back().GoesOn = false;
    }
    inWord = isPart;
  }
  if (!words.empty()) words.back().GoesOn = false;
  return words;
}

using WordPlace = std::vector<Word>::const_iterator;

/// Reads the code that begins at `word`, and moves `word` behind it.
std::variant<Puzzle, Unreadable> TakeCode(WordPlace& word) {
  std::optional<Puzzle> found;
  Unreadable why;
  auto behind = word;
  std::string code;
  for (bool goesOn = true; goesOn; ++word) {
    goesOn = word->GoesOn;
    code += word->Text;
    auto read = PuzzleOfCode(code);
    if (const auto* unreadable = std::get_if<Unreadable>(&read)) {
      why = *unreadable;
      continue;
    }
    if (found) return Unreadable{Say("where this code ends is not clear: write it without spaces")};
    found = std::get<Puzzle>(std::move(read));
    behind = std::next(word);
  }
  if (!found) return why;
  word = behind;
  return *std::move(found);
}

/// Adds the puzzles of the line to the list, or why it is wrong.
void ReadLine(const std::string& line, std::size_t number, CodeList& list) {
  const std::vector<Word> words = WordsOf(line);
  const auto begins = [](const Word& word) { return LooksLikeCode(word.Text); };
  const auto tell = [&](const std::string& why) {
    list.Wrong.push_back({Say("line %1: %2", number, why)});
  };
  auto word = std::find_if(words.begin(), words.end(), begins);
  if (word == words.end() && !words.empty()) tell(Say("there is no puzzle code here"));
  for (; word != words.end(); word = std::find_if(word, words.end(), begins)) {
    auto read = TakeCode(word);
    if (const auto* unreadable = std::get_if<Unreadable>(&read)) return tell(unreadable->Why);
    list.Puzzles.push_back({std::get<Puzzle>(std::move(read)), number});
  }
}

}  // namespace

CodeList PuzzlesOfCodes(const std::string& text, std::size_t firstLine) {
  CodeList list;
  std::istringstream lines(text);
  std::string line;
  for (std::size_t number = firstLine; std::getline(lines, line); ++number)
    ReadLine(line, number, list);
  return list;
}

}  // namespace numorra
