#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "files/stored_square.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// A puzzle of a list and the number of its line, from 1.
struct ListedPuzzle {
  Puzzle Clues;
  std::size_t Line = 1;
};

/// What a list of puzzle codes holds.
struct CodeList {
  std::vector<ListedPuzzle> Puzzles;
  std::vector<Unreadable> Wrong;  ///< a sentence for each wrong line, with its number
};

/// Reads lines with one or more puzzle codes each, with words around them: "Puzzle 12: NP1...".
/// Lines without a letter or digit are passed over. `firstLine`: the number of the text's first
/// line.
///
/// A code begins at a word that begins with NP, capitals or not. It may be written in groups, so
/// the words that follow are part of it as long as the whole is a puzzle. If this holds for more
/// than one number of words, which can happen to codes of version 1, the line is wrong.
CodeList PuzzlesOfCodes(const std::string& text, std::size_t firstLine = 1);

}  // namespace numorra
