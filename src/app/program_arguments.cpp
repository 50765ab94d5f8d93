#include "app/program_arguments.h"

#include <algorithm>

namespace numorra {

using Kind = ProgramRequest::Kind;

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
      next = {Kind::Wrong, "unknown argument '" + word + "'; try --help"};
      for (const auto& [name, kind] : kOptions) {
        if (word == name) next = {kind, word};
      }
    }
    if (next.Wanted == Kind::Wrong) return next;
    if (request.Wanted != Kind::Window) {
      return {Kind::Wrong,
              "only one window can be opened, not one with '" + word + "' too; try --help"};
    }
    request = next;
  }
  return request;
}

const char* ProgramUsage() {
  return R"(usage: numorra [FILE|CODE]
       numorra --new-board
       numorra --new-puzzle
       numorra --sheets FILE.pdf [options]

Opens a window to build and study magic squares, with the square in a file or the
puzzle of a code.

  --new-board   builds a square
  --new-puzzle  builds a square and asks which of its numbers to hide
  --help        this text
  --version     the program's version

--sheets writes worksheets as a PDF file and opens no window. It takes the options of
numorra-square puzzle, but for those of its output, and:

  --answers FILE.pdf  the answers in a file of their own
  --title TEXT        the title of the pages
  --per-page K        1, 2, 4 or 6 puzzles on a page; 6 by default
  --paper a4|letter   the paper; a4 by default
  --landscape         on its side
  --hide-totals       totals are left to be found, where they can be
  --large-print       no text below 18 pt
  --page-numbers      below every page
  --names             a line for a name at every puzzle
  --page-a-pupil      every puzzle alone on its page
  --booklet           wider margins where pages are bound

numorra-square does the same work without a window; see numorra-square --help.
)";
}

}  // namespace numorra
