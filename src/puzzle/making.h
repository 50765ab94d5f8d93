#pragma once

#include <optional>
#include <string>
#include <variant>

#include "app/board/random.h"
#include "app/ports/yielding.h"
#include "puzzle/grade.h"
#include "puzzle/puzzle.h"

namespace numorra {

/// The requirements for a puzzle.
struct PuzzleWish {
  Grade Wanted = Grade::Easy;
  std::optional<int> ClueCount = {};  ///< number of clues; as few as possible if not set
  bool Symmetric = false;             ///< a cell is a gap if and only if its opposite is
};

/// A puzzle with exactly one solution, and the hardest rules that it needs.
struct MadePuzzle {
  Puzzle Clues;
  Puzzle Solution;
  Grade Needed = Grade::Easy;
};

/// A full square to make puzzles from; if there is none, the reason.
struct PuzzleSource {
  std::optional<Puzzle> Square = {};
  std::string WhyNot = {};
};

/// Why a puzzle cannot be made as requested, in one sentence.
struct CannotMake {
  std::string Why;
};

/// Nodes searched for each clue that might be removed from an extreme puzzle.
inline constexpr std::int64_t kExtremeNodes = 200;

/// Makes a puzzle from a full square. Removes numbers in random order as long as the rules of the
/// grade alone still solve the board, which proves that it has one solution. For expert puzzles,
/// the hard rules come first; then further numbers are removed if trials of the new gaps, together
/// with the hard rules, find them again. For extreme puzzles, a search limited in nodes proves
/// further removals. After that no clue can be spared in the same way. If more clues are wanted,
/// numbers are returned, first those that do not change the grade.
///
/// The grade of the result is the hardest rule that it needs. Several orders are tried until one
/// gives the wanted grade; if none does, the hardest puzzle found is returned.
std::variant<MadePuzzle, CannotMake> MakePuzzle(const Puzzle& square, const PuzzleWish& wish,
                                                Random& random, Yielding& yielding);

}  // namespace numorra
