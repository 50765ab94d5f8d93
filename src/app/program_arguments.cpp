#include "app/program_arguments.h"

#include <algorithm>
#include <span>
#include <string_view>

#include "words/say.h"

namespace numorra {
namespace {

using Kind = ProgramRequest::Kind;

/// An option and what --help says about it.
struct OptionHelp {
  std::string_view Option;
  const char* Says;
};

constexpr OptionHelp kWindowHelp[] = {
    {"--new-board", Mark("builds a square")},
    {"--new-puzzle", Mark("builds a square and asks which of its numbers to hide")},
    {"--help", Mark("this text")},
    {"--version", Mark("the program's version")}};

constexpr OptionHelp kSheetsHelp[] = {
    {"--size N", Mark("the number of cells on a side of every puzzle")},
    {"--count M", Mark("the number of puzzles")},
    // Translators: these words are typed and stay.
    {"--grade GRADE", Mark("easy, medium, hard, expert or extreme")},
    {"--answers FILE.pdf", Mark("the answers in a file of their own, not on the last pages")},
    {"--title TEXT", Mark("the title of the pages")},
    {"--per-page K", Mark("1, 2, 4 or 6 puzzles on a page; 6 by default")},
    {"--paper a4|letter", Mark("the paper; a4 by default")},
    // Translators: the pages lie on their long side.
    {"--landscape", Mark("on its side")},
    {"--hide-totals", Mark("totals are left to be found, where they can be")},
    {"--large-print", Mark("no text below 18 pt")},
    // Translators: the numbers of the pages stand below every page.
    {"--page-numbers", Mark("below every page")},
    {"--names", Mark("a line for a name at every puzzle")},
    {"--page-a-pupil", Mark("every puzzle alone on its page, so that each pupil has another")},
    {"--booklet", Mark("wider margins where pages are bound")}};

/// A line for each option; what is said stands in a column.
std::string InColumns(std::span<const OptionHelp> options) {
  std::size_t longest = 0;
  for (const OptionHelp& entry : options)
    longest = std::max(longest, entry.Option.size());
  std::string lines;
  for (const auto& [option, says] : options) {
    const std::string gap(longest + 2 - option.size(), ' ');
    lines.append("  ").append(option).append(gap).append(Say(says)).append("\n");
  }
  return lines;
}

ProgramRequest Wrong(const std::string& why) {
  // Translators: %1 says what is wrong with the arguments.
  return {Kind::Wrong, Say("%1; try --help", why)};
}

}  // namespace

ProgramRequest ParseProgramArguments(const std::vector<std::string>& words) {
  constexpr std::pair<const char*, Kind> kOptions[] = {{"--new-board", Kind::NewBoard},
                                                       {"--new-puzzle", Kind::NewPuzzle}};
  ProgramRequest request;
  const auto ended = std::find(words.begin(), words.end(), "--");
  for (auto word = words.begin(); word != ended; ++word) {
    if (*word == "--help") return {Kind::Help, *word};
    if (*word == "--version") return {Kind::Version, *word};
  }
  bool optionsEnded = false;
  for (const std::string& word : words) {
    if (!optionsEnded && word == "--") {
      optionsEnded = true;
      continue;
    }
    ProgramRequest next{Kind::Open, word};
    if (!optionsEnded && word.starts_with("-")) {
      next = Wrong(Say("unknown argument '%1'", word));
      for (const auto& [name, kind] : kOptions) {
        if (word == name) next = {kind, word};
      }
    }
    if (next.Wanted == Kind::Wrong) return next;
    if (request.Wanted != Kind::Window) {
      return Wrong(Say("only one window can be opened, not one with '%1' too", word));
    }
    request = next;
  }
  return request;
}

std::string ProgramUsage() {
  // Translators: the names of programs, options and values stay. Lines have 86 letters at most.
  return Say(R"(usage: numorra [FILE|CODE]
       numorra --new-board
       numorra --new-puzzle
       numorra --sheets FILE.pdf [options]

Opens a window to build and study magic squares, with the square in a file or the
puzzle of a code.

)") + InColumns(kWindowHelp) +
         // Translators: the options follow in lines of their own.
         Say(R"(
--sheets writes worksheets as a PDF file and opens no window:

)") + InColumns(kSheetsHelp) +
         Say(R"(
It also takes the other options of numorra-square puzzle, except those of its output;
see numorra-square --help. That program builds, studies and lists squares without a
window.
)");
}

}  // namespace numorra
